#include "tools/CommandLine.h"

#include <algorithm>
#include <set>

namespace Parlino {

bool ParseCommandLine(int count, const char* const* arguments,
                      std::initializer_list<CommandOption> options) {
  std::set<std::string_view> given;
  for (int place = 1; place < count; place += 2) {
    const std::string_view name = arguments[place];
    const auto* option = std::ranges::find(options, name, &CommandOption::name);
    if (option == options.end() || place + 1 >= count || !option->take(arguments[place + 1]))
      return false;
    given.insert(name);
  }
  return std::ranges::all_of(options, [&given](const CommandOption& option) {
    return !option.isNeeded || given.contains(option.name);
  });
}

}  // namespace Parlino
