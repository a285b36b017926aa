// The deal: 52 random draws, one card at a time round the table, and the trump suit that follows
// from the dealer.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// A card number 1..52 that nobody holds, drawn at random. Needs at least one such card; leaves its
// owner to the caller. Reports its own errors.
Integer GetSingleCard();

// Deals 13 cards to each seat, beginning with the seat after the dealer, and shows each card on its
// way (two pauses of 25 ms a card). Sets GameInProgress, owners and TrumpSuit; leaves PauseMs at
// 25. Reports its own errors; may leave by HandAbandoned or ProgramEnded.
void DealCards();

// Each deals one card to its seat.
void DealToPlayer();
void DealToWest();
void DealToNorth();
void DealToEast();

// Fixes TrumpSuit from Dealer, shows its picture and says who bids first. Reports its own errors.
void DisplayTrumps();

}  // namespace Parlino
