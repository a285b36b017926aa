// Thin edges. They are filled, not drawn with a pen: on a screen with 1.5 device pixels to a pixel,
// a pen's line lands beside the edge of the area that it belongs to.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace Parlino {

// The inner edges of the box, one pixel wide: one colour along the top and left, the other along
// the bottom and right, which includes the two corners where the colours meet.
inline void DrawEdges(QPainter& painter, const QRect& box, const QColor& topLeft,
                      const QColor& bottomRight) {
  painter.fillRect(box.left(), box.top(), box.width(), 1, topLeft);
  painter.fillRect(box.left(), box.top(), 1, box.height(), topLeft);
  painter.fillRect(box.left(), box.bottom(), box.width(), 1, bottomRight);
  painter.fillRect(box.right(), box.top(), 1, box.height(), bottomRight);
}

inline void DrawEdges(QPainter& painter, const QRect& box, const QColor& colour) {
  DrawEdges(painter, box, colour, colour);
}

}  // namespace Parlino
