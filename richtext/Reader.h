// Reads Rich Text Format.
#pragma once

#include <string_view>

#include "richtext/RichText.h"

namespace Parlino::RichText {

// The document in `source`, within every range that RichText.h promises. Never raises because of
// what the source holds: what is not understood is skipped, a source that is cut short ends the
// document there, and one that is not Rich Text Format at all gives an empty document. Takes time
// and memory in proportion to the source.
Document ReadDocument(std::string_view source);

}  // namespace Parlino::RichText
