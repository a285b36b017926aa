// What must hold at every chance to process events, whatever has happened before.
#pragma once

#include <string>
#include <string_view>

namespace Parlino {

// Thrown at a broken rule. It is no std::exception, so that no error report of the game takes it
// for one of its own.
struct RuleBroken {
  std::string rule;
};

inline void Require(bool holds, std::string_view rule) {
  if (!holds) throw RuleBroken{std::string(rule)};
}

// The name of the first rule of the table and the game state that does not hold; empty when all
// hold.
std::string_view BrokenTableRule();

}  // namespace Parlino
