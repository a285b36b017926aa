// The menus of the table window with their access and shortcut keys.
#pragma once

class QMenuBar;

namespace Parlino {

class PendingEvents;

// Fills the menu bar; choosing a command appends it to the pending events.
void BuildMenus(QMenuBar& bar, PendingEvents& pending);

}  // namespace Parlino
