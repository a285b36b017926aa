// The deal: 52 random draws, one card at a time round the table, and the trump suit that follows
// from the dealer.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The number 1..52 of a random card that nobody holds. There must be such a card; the caller sets
// its owner. Reports its own errors.
Integer GetSingleCard();

// Deals 13 cards to each seat, beginning with the seat after the dealer, and shows each card on its
// way (two pauses of 25 ms a card). Sets GameInProgress, owners and TrumpSuit; leaves PauseMs at
// 25. Reports its own errors; may throw HandAbandoned or ProgramEnded.
void DealCards();

// Each deals one card to its seat.
void DealToPlayer();
void DealToWest();
void DealToNorth();
void DealToEast();

// Sets TrumpSuit by the dealer, shows its picture and says who bids first. Reports its own errors.
void DisplayTrumps();

}  // namespace Parlino
