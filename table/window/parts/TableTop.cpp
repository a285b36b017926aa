#include "table/window/parts/TableTop.h"

#include <QPaintEvent>
#include <QPainter>

#include "table/window/painting/CardBody.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Edges.h"

namespace Parlino {
namespace {

constexpr int FrameWidth = 5;

// The frame is higher than the cloth. The shadow is so narrow that the mean colour stays.
void PaintShadowOfFrame(QPainter& painter, const QRect& cloth) {
  constexpr int reach = 4;
  constexpr int step = 16;
  for (int depth = 0; depth < reach; ++depth) {
    const QColor shade(0, 0, 0, step * (reach - depth));
    painter.fillRect(cloth.left() + depth, cloth.top() + depth, cloth.width() - depth, 1, shade);
    painter.fillRect(cloth.left() + depth, cloth.top() + depth + 1, 1, cloth.height() - depth - 1,
                     shade);
  }
}

}  // namespace

// Not marked as opaque: Qt would not repaint it when a shadow on it changes.
void TableTop::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QColor lit = Colours::Brown.lighter(120);
  const QColor shaded = Colours::Brown.darker(125);
  const QRect cloth = rect().adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth);
  painter.fillRect(rect(), Colours::Brown);
  DrawEdges(painter, rect(), lit, shaded);
  DrawEdges(painter, cloth.adjusted(-1, -1, 1, 1), shaded, lit);
  painter.fillRect(cloth, Colours::Green);
  PaintShadowOfFrame(painter, cloth);
  CardBody::PaintShadowsOn(painter, *this, event->region());
}

}  // namespace Parlino
