// Turns a document of formatted text into one of the toolkit's.
#pragma once

#include "richtext/RichText.h"

class QTextDocument;

namespace Parlino {

// Writes the whole of `source` into `target` in place of what was there. A point is counted as
// 96/72 pixels, so that text has the same size on every screen.
void WriteDocument(const RichText::Document& source, double zoom, QTextDocument& target);

}  // namespace Parlino
