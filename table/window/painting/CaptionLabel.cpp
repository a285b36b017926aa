#include "table/window/painting/CaptionLabel.h"

#include <algorithm>

#include <QFontMetrics>
#include <QPainter>

#include "table/window/painting/Design.h"
#include "table/window/painting/ToolTips.h"
#include "table/window/painting/WrappedText.h"

namespace Parlino {

CaptionLabel::CaptionLabel(const LabelLook& look, QWidget* parent)
    : QLabel(parent), look_(look), lineHeight_(LineHeight(look.font)) {
  setTextFormat(Qt::PlainText);
  setFont(look.font);
  if (look.ground == Ground::Box) setAttribute(Qt::WA_OpaquePaintEvent);
}

void CaptionLabel::SizeToCaption(int mostWidth) {
  if (mostWidth_ == mostWidth) return;
  mostWidth_ = mostWidth;
  BreakLines();
}

void CaptionLabel::ShowCaption(const QString& caption) {
  if (caption == text()) return;
  setText(caption);
  BreakLines();
}

void CaptionLabel::BreakLines() {
  const int mostLines = look_.mostLines > 0 ? look_.mostLines : LinesThatFit(height(), look_.font);
  lines_ = WrapText(text(), look_.font, WidthForText(), mostLines);
  const bool isShortened = lines_.last().contains(Ellipsis) && !text().contains(lines_.last());
  ChangeToolTip(*this, isShortened ? PlainToolTip(text()) : QString());
  if (mostWidth_ > 0)
    resize(QFontMetrics(look_.font).horizontalAdvance(lines_.first()) + Overhang,
           TextHeight(1, look_.font));
  update();
}

int CaptionLabel::WidthForText() const {
  if (mostWidth_ > 0) return mostWidth_;
  return textWidth_ > 0 ? textWidth_ : width();
}

QRect CaptionLabel::LineBox(int line) const {
  const QString& text = lines_.at(line);
  const int textWidth = QFontMetrics(look_.font).horizontalAdvance(text);
  const bool isCentred = look_.align == Qt::AlignHCenter && mostWidth_ == 0;
  const int left = isCentred ? (width() - textWidth) / 2 : 0;
  // If there are slightly too many lines for the box, they move closer together.
  const int step = (height() - Overhang) / static_cast<int>(lines_.size());
  return {left, line * std::min(lineHeight_, step), textWidth, lineHeight_};
}

void CaptionLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (look_.ground == Ground::Box) painter.fillRect(rect(), look_.groundColour);
  painter.setPen(look_.colour);
  for (int line = 0; line < lines_.size(); ++line) {
    const QRect box = LineBox(line);
    if (look_.ground == Ground::Strip && !lines_.at(line).isEmpty())
      painter.fillRect(box.adjusted(-3, 0, 3, 0), look_.groundColour);
    DrawLine(painter, box, lines_.at(line), look_.font);
  }
}

void CaptionLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  if (mostWidth_ == 0) BreakLines();
}

}  // namespace Parlino
