#include "table/window/painting/FlatButton.h"

#include <QPainter>

#include "table/window/painting/Design.h"
#include "table/window/painting/Edges.h"

namespace Parlino {

FlatButton::FlatButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
  setAttribute(Qt::WA_Hover);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void FlatButton::paintEvent(QPaintEvent*) {
  constexpr int lighter = 106;
  constexpr int darker = 115;
  QColor face = palette().color(QPalette::Button);
  if (isDown())
    face = face.darker(darker);
  else if (underMouse())
    face = face.lighter(lighter);
  QPainter painter(this);
  painter.fillRect(rect(), face);
  DrawEdges(painter, rect(), Colours::Black);
  const QColor light = isDown() ? face.darker(darker) : face.lighter(darker);
  const QColor dark = isDown() ? face.lighter(darker) : face.darker(darker);
  DrawEdges(painter, rect().adjusted(1, 1, -1, -1), light, dark);
  if (hasFocus()) DrawEdges(painter, rect().adjusted(3, 3, -3, -3), face.darker(200));
  painter.setPen(palette().color(QPalette::ButtonText));
  painter.drawText(rect().translated(0, isDown() ? 1 : 0), Qt::AlignCenter | Qt::TextShowMnemonic,
                   text());
}

}  // namespace Parlino
