// Tool tips that change while they are open.
#pragma once

class QString;
class QWidget;

namespace Parlino {

// Gives the widget its tool tip. If one with another text is open over it, it is closed.
void ChangeToolTip(QWidget& widget, const QString& text);

}  // namespace Parlino
