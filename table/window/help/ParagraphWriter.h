// Writes single paragraphs into a Qt document.
#pragma once

#include <QTextCursor>

#include "richtext/RichText.h"

namespace Parlino {

// Formats the paragraph that the cursor is in and writes the text into it. The cursor ends up after
// it.
void WriteParagraph(const RichText::Paragraph& paragraph, double zoom, QTextCursor& cursor);

// Converts a length in twips to pixels.
double LengthInPixels(int twips, double zoom);

}  // namespace Parlino
