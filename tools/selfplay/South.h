// A South that sits at the table without a window: it sees the controls and raises their events.
#pragma once

#include <cstdint>

#include "engine/Generator.h"

namespace Parlino {

enum class SouthKind { Random, Robot };

class South {
 public:
  South(SouthKind kind, std::uint64_t seed);

  // Bids, when the bidding panel is shown, or plays a card, when the information line asks for one.
  // Returns false when the table asks for neither.
  bool Act();

 private:
  int ChooseBid();
  int ChooseCard();

  SouthKind kind_;
  Generator generator_;
};

// The suit that the list of cards played says was led to the trick on the table, 4..7; 0 when the
// trick has no card yet.
int SuitLedByList();

}  // namespace Parlino
