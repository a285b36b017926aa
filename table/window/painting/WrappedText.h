// Text broken into lines, measured and drawn by the same rules wherever the table or the message
// dialog shows text.
#pragma once

#include <QFont>
#include <QRect>
#include <QStringList>

class QPainter;

namespace Parlino {

inline constexpr QChar Ellipsis(0x2026);

// Breaks the text into lines of at most `width` pixels: between words, or inside a word that is too
// wide for a line. The rest, on the last of `mostLines`, is shortened in the middle with an
// ellipsis, because what follows a name matters more than its end.
QStringList WrapText(const QString& text, const QFont& font, int width, int mostLines);

// The text with the name at its beginning shortened so that it fits into `width` pixels; what
// follows the name stays whole.
QString ShortenName(const QString& text, qsizetype nameLength, const QFont& font, int width);

// The distance from one line to the next, in pixels.
int LineHeight(const QFont& font);

// Slanted letters extend beyond their line at the right, and long descenders at the bottom, by no
// more than this many pixels.
inline constexpr int Overhang = 2;

// The height of so many lines, including the descenders of the last one.
int TextHeight(qsizetype lines, const QFont& font);

// How many lines fit into the height; at least one.
int LinesThatFit(int height, const QFont& font);

// Draws a line of text from the top left of its box, in the colour of the painter's pen.
void DrawLine(QPainter& painter, QRect box, const QString& text, const QFont& font);

}  // namespace Parlino
