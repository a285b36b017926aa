// What the game throws when something is wrong, and the two ways out of a hand that are not errors.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Parlino {

// The integers of the game are 16 bits wide; sums are computed in `int` and converted back by
// `ToInteger`.
using Integer = std::int16_t;

// An unexpected state or a system error. The error report shows its number, one of <cerrno>, and
// its description.
class GameError : public std::runtime_error {
 public:
  GameError(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}
  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

// Abandons the hand under way from any depth; the round driver catches it and deals afresh.
struct HandAbandoned {};

// Ends the program: thrown once the windows are closed, caught by RunGame.
struct ProgramEnded {};

[[noreturn]] void RaiseIndexError(int index, int first, int last);

[[noreturn]] void RaiseRangeError(int value);

// The value as a 16-bit integer; raises a GameError if it does not fit.
inline Integer ToInteger(int value) {
  const auto integer = static_cast<Integer>(value);
  if (integer != value) RaiseRangeError(value);
  return integer;
}

}  // namespace Parlino
