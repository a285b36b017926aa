#include "table/window/painting/FrameBox.h"

#include <QFontMetrics>
#include <QPainter>

#include "table/window/painting/Edges.h"
#include "table/window/painting/WrappedText.h"

namespace Parlino {
namespace {

constexpr int CaptionIndent = 8;
constexpr int CaptionMargin = 3;

}  // namespace

FrameBox::FrameBox(const FrameLook& look, QWidget* parent) : QGroupBox(parent), look_(look) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void FrameBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), look_.ground);
  const QFontMetrics metrics(look_.font);
  // If the frame extends to the edge of the window, its line is still drawn there.
  const QRect seen = rect() & parentWidget()->rect().translated(-pos());
  const QColor dark = look_.ground.darker(220);
  const QColor light = look_.ground.lighter(190);
  const QRect line = seen.adjusted(0, metrics.height() / 2, 0, 0);
  DrawEdges(painter, line, dark, light);
  DrawEdges(painter, line.adjusted(1, 1, -1, -1), light, dark);

  const int width = metrics.horizontalAdvance(title());
  const int left = std::min(CaptionIndent, (seen.width() - width) / 2);
  const QRect caption(left, 0, width, metrics.height());
  painter.fillRect(caption.adjusted(-CaptionMargin, 0, CaptionMargin, 0), look_.ground);
  painter.setPen(look_.colour);
  DrawLine(painter, caption, title(), look_.font);
}

FilledBox::FilledBox(const QColor& fill, QWidget* parent) : QWidget(parent), fill_(fill) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void FilledBox::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), fill_);
}

}  // namespace Parlino
