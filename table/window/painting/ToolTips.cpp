#include "table/window/painting/ToolTips.h"

#include <QToolTip>
#include <QWidget>

namespace Parlino {

void ChangeToolTip(QWidget& widget, const QString& text) {
  const QString before = widget.toolTip();
  if (text == before) return;
  widget.setToolTip(text);
  if (widget.underMouse() && QToolTip::isVisible() && QToolTip::text() == before)
    QToolTip::hideText();
}

}  // namespace Parlino
