// Tool tips that change while they are open.
#pragma once

class QString;
class QWidget;

namespace Parlino {

// Gives the widget its tool tip. One that is open over it with another text goes.
void ChangeToolTip(QWidget& widget, const QString& text);

}  // namespace Parlino
