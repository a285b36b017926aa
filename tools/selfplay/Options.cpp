#include "tools/selfplay/Options.h"

#include <charconv>
#include <string_view>

namespace Parlino {
namespace {

template <class Number>
bool ParseNumber(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

bool ParseSouth(std::string_view text, SouthKind& south) {
  if (text != "random" && text != "robot") return false;
  south = text == "robot" ? SouthKind::Robot : SouthKind::Random;
  return true;
}

bool ParseOption(std::string_view name, std::string_view value, SelfPlayOptions& options) {
  if (name == "--hands") return ParseNumber(value, options.hands) && options.hands > 0;
  if (name == "--seed") return ParseNumber(value, options.seed);
  if (name == "--south") return ParseSouth(value, options.south);
  if (name != "--transcript") return false;
  options.transcript = value;
  return !value.empty();
}

}  // namespace

std::optional<SelfPlayOptions> ParseOptions(int count, const char* const* arguments) {
  SelfPlayOptions options;
  bool seedGiven = false;
  for (int place = 1; place < count; place += 2) {
    const std::string_view name = arguments[place];
    if (place + 1 >= count || !ParseOption(name, arguments[place + 1], options)) return {};
    seedGiven = seedGiven || name == "--seed";
  }
  if (options.hands == 0 || !seedGiven) return {};
  return options;
}

}  // namespace Parlino
