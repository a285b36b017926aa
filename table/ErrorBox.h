// The plain box that tells the player about an error.
#pragma once

#include <exception>
#include <string_view>

namespace Parlino {

// Shows the error caught in `procedure`, with its number and description, and waits for OK.
void ShowErrorBox(std::string_view procedure, const std::exception& error);

}  // namespace Parlino
