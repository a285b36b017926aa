// The round driver: hand after hand, from the clearing of the table to the last trick.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// "New Game": deals a hand.
void MnuNew_Click();

// Clears the table, deals, collects the bids and plays the hand, then the next hand, and so on
// until ProgramEnded is thrown; returns only after an error, which it has reported. Called while a
// hand is under way, it throws HandAbandoned at once, so that the driver of that hand deals afresh
// and calls never nest. Totals and statistics stay as they are.
void DealNewRound();

// Chooses the dealer: the next seat while a game is in progress, any seat otherwise. Sets Dealer
// and Leader. Reports its own errors.
void GetDealer();

// Resets the table and the state of the hand to the start of a hand; totals stay.
void ClearTable();

// The human bids `tricks`, 1..13. A bid cannot be changed.
void LblBids_Click(Integer tricks);

}  // namespace Parlino
