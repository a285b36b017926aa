// The hands of a person at the windows of the program: on the mouse and the keys, on purpose or by
// mistake, on any widget whatever it is for.
#pragma once

#include <QWidget>

#include "tests/chaos/Chaos.h"

namespace Parlino {

// The windows that are on the screen, always in the same order.
QWidgetList WindowsThere();

// Uses the widget or the command of the menus that has this name; or a part of a box in front of
// it.
void UseByHand(const std::string& name, Chaos& chaos);

// Does one thing, or a few at once, to anything that is on the screen.
void DoAnythingByHand(Chaos& chaos);

}  // namespace Parlino
