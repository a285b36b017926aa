// What the game raises when something is wrong, and the two ways out of a hand that are no error.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Parlino {

// The integers of the game are 16 bits wide; sums are formed in `int` and put back by `ToInteger`.
using Integer = std::int16_t;

// An unexpected state or a fault of the system: the number and the description are what the error
// report shows. Numbers are those of <cerrno>.
class GameError : public std::runtime_error {
 public:
  GameError(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}
  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

// Leaves the hand under way from any depth; the round driver catches it and deals afresh.
struct HandAbandoned {};

// Leaves everything: thrown once the windows are closed, caught where the program began.
struct ProgramEnded {};

[[noreturn]] void RaiseIndexError(int index, int first, int last);

// The value as a 16-bit integer; raises a GameError when it does not fit.
Integer ToInteger(int value);

}  // namespace Parlino
