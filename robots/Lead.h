// What a robot leads, and the questions about a hand that following robots ask as well.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The card that the seat leads, chosen from its own hand and the cards already played alone.
// Changes only the four suit totals.
Integer ChooseFirstCard(Integer seat);

// The seat's lowest card of the suit, or 0 when it holds none. Reports its own errors.
Integer LowestCardSuit(Integer suit, Integer seat);

// The suit of which the seat holds the most cards; a tie goes to Diamonds, Clubs, Hearts, Spades in
// this order. Changes the four suit totals. Reports its own errors.
Integer MostSuitCards(Integer seat);

// What a robot discards: the lowest card of its longest suit, which may be trumps.
Integer ChooseDiscard(Integer seat);

}  // namespace Parlino
