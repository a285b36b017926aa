#include "tools/selfplay/Options.h"

#include "tools/CommandLine.h"

namespace Parlino {
namespace {

bool TakeSouth(std::string_view text, bool& isRobot) {
  if (text != "random" && text != "robot") return false;
  isRobot = text == "robot";
  return true;
}

}  // namespace

std::optional<SelfPlayOptions> ParseOptions(int count, const char* const* arguments) {
  SelfPlayOptions options;
  const auto takeTranscript = [&options](std::string_view text) {
    options.transcript = text;
    return !text.empty();
  };
  const bool understood = ParseCommandLine(
      count, arguments,
      {{"--hands", TakeNumber(options.hands, 1)},
       {"--seed", TakeNumber(options.seed)},
       {"--south",
        [&options](std::string_view text) { return TakeSouth(text, options.isSouthARobot); },
        false},
       {"--transcript", takeTranscript, false}});
  return understood ? std::optional(options) : std::nullopt;
}

}  // namespace Parlino
