#include "table/window/painting/FocusMark.h"

#include <utility>

#include <QPainter>

#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

constexpr int Thickness = 3;
constexpr int PointerHeight = 10;
constexpr int PointerWidth = 20;
constexpr QMargins Around(PointerWidth / 2, PointerHeight + Thickness, PointerWidth / 2, Thickness);

}  // namespace

FocusMark::FocusMark(QWidget* table) : QWidget(table) {
  setObjectName("FocusMark");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

// Leaves the edge of the next card uncovered, and so its rank too.
void FocusMark::Frame(QRect card, int seenWidth, MarkLook look) {
  if (seenWidth < card.width()) card.setWidth(seenWidth - Thickness - 1);
  setGeometry(card.marginsAdded(Around));
  if (std::exchange(look_, look) != look) update();
}

// The shape can be seen without the colour. Frame and pointer have a dark edge, because the cards
// are white and the table is dark.
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
  drawFrame(look_ == MarkLook::AtRest ? Colours::PaleSlate : Colours::Gold, Thickness);

  if (look_ != MarkLook::Pointing) return;
  const QPointF tip(part.center().x(), part.top() - Thickness - 1);
  const qreal half = PointerWidth / 2.0 - 2;
  const QPolygonF pointer{tip, tip + QPointF(-half, 1 - PointerHeight),
                          tip + QPointF(half, 1 - PointerHeight)};
  painter.setPen(QPen(Colours::Navy, 1));
  painter.setBrush(Colours::Gold);
  painter.drawPolygon(pointer);
}

}  // namespace Parlino
