// The command line of parlino-selfplay.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Parlino {

struct SelfPlayOptions {
  int hands = 0;
  std::uint64_t seed = 0;
  bool isSouthARobot = false;  // or one who plays at random
  int jobs = 0;                // 0 for a single session
  std::string transcript;      // file names; empty for none
  std::string table;
  bool isHelpWanted = false;
};

// Fills in the options and returns nothing, or what is wrong with the command line.
std::string ParseOptions(int count, const char* const* arguments, SelfPlayOptions& options);

// What --help says.
extern const std::string_view SelfPlayHelp;

}  // namespace Parlino
