// Text broken into lines, measured and drawn by the same rules wherever the table or the message
// dialog shows some.
#pragma once

#include <QFont>
#include <QRect>
#include <QStringList>

class QPainter;

namespace Parlino {

inline constexpr QChar Ellipsis(0x2026);

// Breaks the text into lines of at most `width` pixels: between words, inside a word only where it
// is too wide for a line. What is left for the last of `mostLines` is cut short with an ellipsis; a
// single line in its middle, for what a name is followed by matters more than its end.
QStringList WrapText(const QString& text, const QFont& font, int width, int mostLines);

// The text with the name at its beginning cut short so that it fits into `width` pixels; what
// follows the name stays whole.
QString ShortenName(const QString& text, qsizetype nameLength, const QFont& font, int width);

// The distance from one line to the next, in pixels.
int LineHeight(const QFont& font);

// Slanted letters lean out of their line at the right and long tails at the bottom, by no more than
// this many pixels.
inline constexpr int Overhang = 2;

// The height of so many lines, the tails of the last one included.
int TextHeight(qsizetype lines, const QFont& font);

// How many lines fit into the height; at least one.
int LinesThatFit(int height, const QFont& font);

// Draws a line of text from the top left of its box, in the colour of the painter's pen.
void DrawLine(QPainter& painter, QRect box, const QString& text, const QFont& font);

}  // namespace Parlino
