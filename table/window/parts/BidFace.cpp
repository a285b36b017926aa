#include "table/window/parts/BidFace.h"

#include <utility>

#include <QPainter>

#include "table/window/painting/Design.h"
#include "table/window/painting/Edges.h"

namespace Parlino {

BidFace::BidFace(QWidget* parent) : KeyButton(parent) {
  constexpr double points = 9.75;
  setFont(TimesBold(points));
  setFocusPolicy(Qt::ClickFocus);
  setAttribute(Qt::WA_Hover);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void BidFace::ShowModel(const BidButton& button) {
  setText(QString::fromStdString(button.Caption));
  setToolTip(QString::fromStdString(button.ToolTipText));
}

void BidFace::MarkFocus(bool marked) {
  if (std::exchange(marksFocus_, marked) != marked) update();
}

void BidFace::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor face = Colours::Olive;
  if (isDown())
    face = face.darker(130);
  else if (underMouse())
    face = face.lighter(125);
  painter.fillRect(rect(), face);
  DrawEdges(painter, rect(), Colours::Black);
  if (hasFocus() && marksFocus_) {
    DrawEdges(painter, rect().adjusted(1, 1, -1, -1), Colours::White);
    DrawEdges(painter, rect().adjusted(2, 2, -2, -2), Colours::White);
    DrawEdges(painter, rect().adjusted(3, 3, -3, -3), Colours::Black);
  }
  painter.setPen(Colours::Black);
  painter.drawText(rect().translated(0, isDown() ? 1 : 0), Qt::AlignCenter, text());
}

}  // namespace Parlino
