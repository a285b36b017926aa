// What robots ask about a hand.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The seat's lowest card of the suit whose value is above `value`, or 0 when there is none: the
// cheapest card that beats a card of the suit with that value.
inline Integer LowestCardAbove(Integer suit, Integer value, Integer seat) {
  return HandOf(seat, suit).Between(CardNumber(value, suit) + 1, CardNumber(Ace, suit)).Lowest();
}

}  // namespace Parlino
