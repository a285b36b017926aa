// What a robot leads, and the two looks at a hand that following robots share.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The card that the seat leads, by its own hand and the cards already played. Changes only the four
// suit totals.
Integer ChooseFirstCard(Integer seat);

// The seat's lowest card of the suit, or 0 when it holds none. Reports its own errors.
Integer LowestCardSuit(Integer suit, Integer seat);

// The suit of which the seat holds most cards; a tie goes to Diamonds, Clubs, Hearts, Spades in
// this order. Changes the four suit totals. Reports its own errors.
Integer MostSuitCards(Integer seat);

// What a robot throws away: the lowest card of its longest suit, which may be trumps.
Integer ChooseDiscard(Integer seat);

}  // namespace Parlino
