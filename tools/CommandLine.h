// Command lines of the tools: pairs of an option's name and its value.
#pragma once

#include <charconv>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace Parlino {

struct CommandOption {
  std::string_view name;
  std::function<bool(std::string_view value)> take;  // says whether the value can be understood
  bool isNeeded = true;
};

// Gives each option its value. Returns what is wrong if the line cannot be understood or a needed
// option is missing, otherwise nothing.
std::string ComplaintAbout(int count, const char* const* arguments,
                           std::initializer_list<CommandOption> options);

// The same, but only says whether nothing is wrong.
bool ParseCommandLine(int count, const char* const* arguments,
                      std::initializer_list<CommandOption> options);

// Takes a whole number that is at least `lowest`.
template <class Number>
auto TakeNumber(Number& number, Number lowest = 0) {
  return [&number, lowest](std::string_view text) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number >= lowest;
  };
}

}  // namespace Parlino
