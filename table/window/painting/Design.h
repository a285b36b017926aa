// Units, colours and fonts of the table's design.
#pragma once

#include <string_view>

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

#include "table/TableView.h"

namespace Parlino {

inline constexpr int TwipsInPixel = 15;
inline constexpr QSize ClientSize{784, 635};  // pixels

inline int ToPixels(double twips) {
  return qRound(twips / TwipsInPixel);
}
inline QPoint ToPixels(TablePoint place) {
  return {ToPixels(place.Left), ToPixels(place.Top)};
}
inline QRect ToPixels(int left, int top, int width, int height) {
  return {ToPixels(left), ToPixels(top), ToPixels(width), ToPixels(height)};
}

inline QString ToText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A tool tip that shows its text literally, even if a player's name looks like markup.
QString PlainToolTip(const QString& text);

namespace Colours {
inline constexpr QColor Navy(0, 0, 64);
inline constexpr QColor Slate(64, 64, 128);
inline constexpr QColor LightYellow(255, 255, 192);
inline constexpr QColor Yellow(255, 255, 0);
inline constexpr QColor Green(0, 128, 0);
inline constexpr QColor Brown(128, 64, 0);
inline constexpr QColor Teal(0, 64, 64);
inline constexpr QColor Olive(192, 192, 0);
inline constexpr QColor DarkGreen(0, 64, 0);
inline constexpr QColor Pink(255, 192, 192);
inline constexpr QColor LightGrey(224, 224, 224);
inline constexpr QColor Peach(255, 224, 192);
inline constexpr QColor White(255, 255, 255);
inline constexpr QColor Black(0, 0, 0);
inline constexpr QColor LightGreen(192, 255, 192);
inline constexpr QColor Grey(192, 192, 192);
inline constexpr QColor Gold(255, 200, 40);  // what the keys have reached
inline constexpr QColor PaleSlate(128, 136, 184);
inline constexpr QColor Paper(255, 253, 246);
inline constexpr QColor Ink(32, 28, 24);
inline constexpr QColor EdgeLight(240, 240, 240);
inline constexpr QColor EdgeGrey(128, 128, 128);
}  // namespace Colours

// Dark text on a light background, whatever the desktop's colours are.
QPalette LightColours(const QColor& window, const QColor& button = Colours::LightGrey);

enum class Slope { Upright, Italic };
enum class Rule { None, Underline };

// Bold Times New Roman. A point is counted as 96/72 pixels, so that the layout is the same on every
// screen.
QFont TimesBold(double points, Slope slope = Slope::Upright, Rule rule = Rule::None);

// The font families of running text; the first one that is installed is used.
const QStringList& TextFamilies();

// The size in pixels of letters of so many points, kept within a range that can still be read.
int TextPixels(double points, double zoom = 1);

// The font of running text, so many points large.
QFont TextFont(double points);

// The font of every control for which no other font is given.
inline QFont WindowFont() {
  return TimesBold(11.25);
}

// The font of everything in the message dialog.
inline QFont MessageFont() {
  return TimesBold(9.75);
}

}  // namespace Parlino
