// Writes single paragraphs into a document of the toolkit's.
#pragma once

#include <QTextCursor>

#include "richtext/RichText.h"

namespace Parlino {

// Formats the paragraph that the cursor stands in and writes the text into it. The cursor ends
// behind it.
void WriteParagraph(const RichText::Paragraph& paragraph, double zoom, QTextCursor& cursor);

inline constexpr int LongestLength = 20 * 1440;  // twips, more than any page needs

// A length as pixels, cut to the longest.
double LengthInPixels(int twips, double zoom);

}  // namespace Parlino
