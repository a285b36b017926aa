// Turns a document of formatted text into a Qt document.
#pragma once

#include "richtext/RichText.h"

class QTextDocument;

namespace Parlino {

// Replaces the content of `target` with the whole of `source`. A point is counted as 96/72 pixels,
// so that text has the same size on every screen.
void WriteDocument(const RichText::Document& source, double zoom, QTextDocument& target);

}  // namespace Parlino
