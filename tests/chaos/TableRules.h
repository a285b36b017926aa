// What must hold at every chance to process events, whatever has happened before.
#pragma once

#include <string_view>

namespace Parlino {

// The name of the first rule of the table and the game state that does not hold; empty when all
// hold.
std::string_view BrokenTableRule();

}  // namespace Parlino
