// Turns a document of formatted text into one of the toolkit's.
#pragma once

#include "richtext/RichText.h"

class QTextDocument;

namespace Parlino {

// The paper that the text stands on, in pixels at zoom 1.
struct Page {
  double zoom = 1;
  int textWidth = 560;  // tables that are wider than this fill the width there is
};

// Writes the whole of `source` into `target` in place of what was there. A point is counted as
// 96/72 pixels, so that text has the same size on every screen.
void WriteDocument(const RichText::Document& source, const Page& page, QTextDocument& target);

}  // namespace Parlino
