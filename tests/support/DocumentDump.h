// A document as text, compact enough to be the expectation of a test.
#pragma once

#include <string>

#include "richtext/RichText.h"

namespace Parlino::RichText {

// A line for each paragraph outside of tables and for each row of a table. What differs from the
// ordinary stands before the text: of a paragraph in (), of a run in <| >, of a cell before its [].
std::string DumpDocument(const Document& document);

}  // namespace Parlino::RichText
