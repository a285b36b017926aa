// What must hold for every document, whatever source it was read from.
#pragma once

#include <cstddef>
#include <string>

#include "richtext/RichText.h"

namespace Parlino::RichText {

// What is wrong with a document read from so many bytes, "" for nothing: text that is no UTF-8 or
// holds control characters, numbers out of their bounds, runs that should be one, and memory out of
// proportion to the source.
std::string FindFault(const Document& document, std::size_t sourceBytes);

}  // namespace Parlino::RichText
