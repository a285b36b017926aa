// How a robot plays second and third to a trick.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The card that the seat plays second or third, chosen from its own hand, the trick so far and
// TrumpSuit alone. They change nothing but the suit totals and, without a card of the led suit,
// PauseMs.
Integer ChooseSecondCard(Integer seat);
Integer ChooseThirdCard(Integer seat);

// Whether `who` can beat the led card, whatever else has been played to the trick. Reports its own
// errors.
bool BeatStartCardQuery(Integer who);

// Whether the led card, played by the third hand's partner, still beats the second. Reports its own
// errors.
bool PartnerWinningThird();

}  // namespace Parlino
