// The round driver: one hand after the other, from the clearing of the table to the last trick.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// "New Game": deals a hand.
void MnuNew_Click();

// Clears the table, deals, collects the bids and plays the hand, and goes on with the next one
// until it leaves by ProgramEnded; returns only after an error that it has reported. While a hand
// is under way a further call abandons that hand at once and leaves by HandAbandoned, so that the
// hand's own driver deals afresh and calls never nest. Totals and statistics are left alone.
void DealNewRound();

// Chooses the dealer: the next seat while a game is in progress, any seat otherwise. Sets Dealer
// and Leader. Reports its own errors.
void GetDealer();

// Puts the table and the per-hand state back to the start of a hand; totals stay.
void ClearTable();

// The human bids `tricks`, 1..13. A bid cannot be changed.
void LblBids_Click(Integer tricks);

}  // namespace Parlino
