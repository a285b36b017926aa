// How a robot plays second and third to a trick.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The card that the seat plays at the position, by its own hand, the trick so far and TrumpSuit.
// They change nothing but the suit totals and, without a card of the led suit, PauseMs.
Integer ChooseSecondCard(Integer seat);
Integer ChooseThirdCard(Integer seat);

// Whether `who` can beat the led card, other cards of the trick left aside. Reports its own errors.
bool BeatStartCardQuery(Integer who);

// Whether the led card, the third hand's partner's, still beats the second. Reports its own errors.
bool PartnerWinningThird();

}  // namespace Parlino
