// The command line of parlino-selfplay.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tools/selfplay/South.h"

namespace Parlino {

struct SelfPlayOptions {
  int hands = 0;
  std::uint64_t seed = 0;
  SouthKind south = SouthKind::Random;
  std::string transcript;  // a file name; empty for none
};

// Returns nothing if the command line cannot be understood.
std::optional<SelfPlayOptions> ParseOptions(int count, const char* const* arguments);

}  // namespace Parlino
