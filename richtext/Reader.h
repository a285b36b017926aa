// Reads Rich Text Format.
#pragma once

#include <string_view>

#include "richtext/RichText.h"

namespace Parlino::RichText {

// The document in `source`. Never raises because of what the source holds: what is not understood
// is passed over, what is cut short ends there, and source that is no Rich Text Format at all gives
// an empty document. The text is valid UTF-8 without control characters but "\t" and "\n", no run
// is empty, every cell has a paragraph, the edges of a row never go back, and numbers and amounts
// stay within the bounds of Limits.h. Takes time and memory in proportion to the source.
Document ReadDocument(std::string_view source);

}  // namespace Parlino::RichText
