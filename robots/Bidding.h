// How a robot bids: a count over its thirteen cards.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// Counts the seat's cards by suit into DiamondsTotal, ClubsTotal, HeartsTotal and SpadesTotal.
// Reports its own errors.
void SuitTotals(Integer seat);

// The seat's bid, at least 1, from its own hand and TrumpSuit alone. Changes only the four suit
// totals. Reports its own errors.
Integer GetBid(Integer seat);

// The seat's trumps below the King. Each is worth half a trick, and a bid leaves out half a trick
// that remains.
int LowerTrumps(Integer seat);

}  // namespace Parlino
