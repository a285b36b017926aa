#include "table/window/Design.h"

#include <QStringList>
#include <QTextDocument>

namespace Parlino {

QString PlainToolTip(const QString& text) {
  return Qt::mightBeRichText(text) ? "<span>" + text.toHtmlEscaped() + "</span>" : text;
}

QFont TimesBold(double points, Slope slope, Rule rule) {
  constexpr double pixelsInPoint = 96.0 / 72.0;
  // Liberation Serif has the same metrics, letter by letter.
  static const QStringList families{"Times New Roman", "Liberation Serif", "serif"};
  QFont font;
  font.setFamilies(families);
  font.setPixelSize(qRound(points * pixelsInPoint));
  font.setBold(true);
  font.setItalic(slope == Slope::Italic);
  font.setUnderline(rule == Rule::Underline);
  return font;
}

}  // namespace Parlino
