#include "table/window/painting/WrappedText.h"

#include <algorithm>

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

namespace Parlino {

// Text that is too long is shortened in the middle: a name stands at the beginning, and what is
// said about it at the end.
QStringList WrapText(const QString& text, const QFont& font, int width, int mostLines) {
  const QFontMetrics metrics(font);
  if (metrics.horizontalAdvance(text) <= width) return {text};
  if (mostLines == 1) return {metrics.elidedText(text, Qt::ElideMiddle, width)};
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  QStringList lines;
  while (lines.size() + 1 < mostLines) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(width);
    lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
  }
  const QTextLine last = layout.createLine();
  if (last.isValid())
    lines.append(metrics.elidedText(text.mid(last.textStart()), Qt::ElideMiddle, width));
  layout.endLayout();
  return lines;
}

QString ShortenName(const QString& text, qsizetype nameLength, const QFont& font, int width) {
  const QFontMetrics metrics(font);
  if (metrics.horizontalAdvance(text) <= width) return text;
  const QString rest = text.mid(nameLength);
  const int room = width - metrics.horizontalAdvance(rest);
  return metrics.elidedText(text.first(nameLength), Qt::ElideMiddle, room) + rest;
}

int LineHeight(const QFont& font) {
  return QFontMetrics(font).height();
}

int TextHeight(qsizetype lines, const QFont& font) {
  return static_cast<int>(lines) * LineHeight(font) + Overhang;
}

int LinesThatFit(int height, const QFont& font) {
  return std::max(1, (height - Overhang) / LineHeight(font));
}

// Qt's own underline in this typeface runs through the bottom of large letters; this one keeps
// clear of them, and stops beside letters that reach below it.
void DrawLine(QPainter& painter, QRect box, const QString& text, const QFont& font) {
  constexpr double gapOfSize = 0.095;
  constexpr double thicknessOfSize = 0.05;
  QFont plain = font;
  plain.setUnderline(false);
  painter.setFont(plain);
  painter.drawText(box, Qt::AlignLeft | Qt::TextDontClip, text);
  if (!font.underline()) return;
  const int size = font.pixelSize();
  const QFontMetrics metrics(plain);
  const int top = box.top() + metrics.ascent() + std::max(2, qRound(size * gapOfSize));
  const int height = std::max(1, qRound(size * thicknessOfSize));
  const auto drawUpTo = [&](int from, int to) {
    if (to > from)
      painter.fillRect(box.left() + from, top, to - from, height, painter.pen().color());
  };
  int from = 0;
  for (qsizetype place = 0; place < text.size(); ++place) {
    if (!QString("gjpqyQ,;").contains(text[place])) continue;
    drawUpTo(from, metrics.horizontalAdvance(text.first(place)) - height);
    from = metrics.horizontalAdvance(text.first(place + 1)) + height;
  }
  drawUpTo(from, box.width());
}

}  // namespace Parlino
