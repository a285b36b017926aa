#include "table/window/FocusMark.h"

#include <QPainter>

#include "table/window/Design.h"

namespace Parlino {
namespace {

constexpr int Thickness = 3;
constexpr int PointerHeight = 9;
constexpr int PointerWidth = 18;
constexpr QMargins Around(PointerWidth / 2, PointerHeight + Thickness, PointerWidth / 2, Thickness);
constexpr QColor Gold(255, 200, 40);

}  // namespace

FocusMark::FocusMark(QWidget* table) : QWidget(table) {
  setObjectName("FocusMark");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void FocusMark::Frame(QRect part) {
  setGeometry(part.marginsAdded(Around));
}

// A frame with a pointer above it, so that its shape is seen where its colour is not; both have a
// dark edge, for the cards are white and the table is dark.
void FocusMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF part = rect().marginsRemoved(Around);
  const auto drawFrame = [&](const QColor& colour, qreal thickness) {
    constexpr qreal corner = 5;
    const qreal half = Thickness / 2.0;
    painter.setPen(QPen(colour, thickness));
    painter.drawRoundedRect(part.adjusted(-half, -half, half, half), corner, corner);
  };
  painter.setBrush(Qt::NoBrush);
  drawFrame(Colours::Navy, Thickness + 2);
  drawFrame(Gold, Thickness);

  const QPointF tip(part.center().x(), part.top() - Thickness - 1);
  const qreal half = PointerWidth / 2.0 - 2;
  const QPolygonF pointer{tip, tip + QPointF(-half, 1 - PointerHeight),
                          tip + QPointF(half, 1 - PointerHeight)};
  painter.setPen(QPen(Colours::Navy, 1));
  painter.setBrush(Gold);
  painter.drawPolygon(pointer);
}

}  // namespace Parlino
