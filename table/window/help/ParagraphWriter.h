// Writes single paragraphs into a document of the toolkit's.
#pragma once

#include <QTextCursor>

#include "richtext/RichText.h"

namespace Parlino {

// Formats the paragraph that the cursor stands in and writes the text into it. The cursor ends
// behind it.
void WriteParagraph(const RichText::Paragraph& paragraph, double zoom, QTextCursor& cursor);

// A length as pixels.
double LengthInPixels(int twips, double zoom);

}  // namespace Parlino
