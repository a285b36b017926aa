#include "table/window/painting/Design.h"

#include <QTextDocument>

namespace Parlino {

QString PlainToolTip(const QString& text) {
  return Qt::mightBeRichText(text) ? "<span>" + text.toHtmlEscaped() + "</span>" : text;
}

// Liberation Serif has the same metrics as Times New Roman, letter by letter.
const QStringList& TextFamilies() {
  static const QStringList families{"Times New Roman", "Liberation Serif", "serif"};
  return families;
}

int TextPixels(double points, double zoom) {
  constexpr double pixelsInPoint = 96.0 / 72.0;
  constexpr double smallest = 4;
  constexpr double largest = 400;
  return qRound(qBound(smallest, points * pixelsInPoint * zoom, largest));
}

QFont TextFont(double points) {
  QFont font;
  font.setFamilies(TextFamilies());
  font.setPixelSize(TextPixels(points));
  font.setBold(false);  // set explicitly, or it would be inherited from the window
  return font;
}

QPalette LightColours(const QColor& window, const QColor& button) {
  QPalette colours(Colours::LightGrey);
  colours.setColor(QPalette::Window, window);
  colours.setColor(QPalette::Button, button);
  colours.setColor(QPalette::Base, Colours::White);
  colours.setColor(QPalette::Highlight, Colours::Green);
  colours.setColor(QPalette::HighlightedText, Colours::White);
  return colours;
}

QFont TimesBold(double points, Slope slope, Rule rule) {
  QFont font = TextFont(points);
  font.setBold(true);
  font.setItalic(slope == Slope::Italic);
  font.setUnderline(rule == Rule::Underline);
  return font;
}

}  // namespace Parlino
