// The command line of parlino-selfplay.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Parlino {

struct SelfPlayOptions {
  int hands = 0;
  std::uint64_t seed = 0;
  bool isSouthARobot = false;  // or one who plays at random
  std::string transcript;      // a file name; empty for none
};

// Returns nothing if the command line cannot be understood.
std::optional<SelfPlayOptions> ParseOptions(int count, const char* const* arguments);

}  // namespace Parlino
