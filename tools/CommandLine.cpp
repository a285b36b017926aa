#include "tools/CommandLine.h"

#include <algorithm>
#include <set>

namespace Parlino {

std::string ComplaintAbout(int count, const char* const* arguments,
                           std::initializer_list<CommandOption> options) {
  std::set<std::string_view> given;
  for (int place = 1; place < count; place += 2) {
    const std::string name = arguments[place];
    const auto* option = std::ranges::find(options, name, &CommandOption::name);
    if (option == options.end()) return name + " is not an option";
    if (place + 1 >= count) return name + " needs a value";
    if (!option->take(arguments[place + 1]))
      return name + " cannot be \"" + arguments[place + 1] + "\"";
    given.insert(option->name);
  }
  for (const CommandOption& option : options)
    if (option.isNeeded && !given.contains(option.name))
      return std::string(option.name) + " is missing";
  return {};
}

bool ParseCommandLine(int count, const char* const* arguments,
                      std::initializer_list<CommandOption> options) {
  return ComplaintAbout(count, arguments, options).empty();
}

}  // namespace Parlino
