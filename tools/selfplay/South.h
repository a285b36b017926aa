// A South at the table without a window: it sees the controls and fires their events.
#pragma once

#include <cstdint>

#include "engine/Generator.h"

namespace Parlino {

enum class SouthKind { Random, Robot };

class South {
 public:
  South(SouthKind kind, std::uint64_t seed);

  // Bids if the bidding panel is shown, or plays a card if the information line asks for one.
  // Returns false if the table asks for neither.
  bool Act();

 private:
  int ChooseBid();
  int ChooseCard();

  SouthKind kind_;
  Generator generator_;
};

// The suit led to the trick on the table according to the list of cards played, 4..7; 0 if the
// trick has no card yet.
int SuitLedByList();

}  // namespace Parlino
