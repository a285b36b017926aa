// How a robot plays last to a trick.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The card that the seat plays last, by its own hand, the three cards before it and TrumpSuit.
// Changes nothing but the suit totals and, without a card of the led suit, PauseMs.
Integer ChooseFourthCard(Integer seat);

// Whether the second card, the fourth hand's partner's, is judged to be winning. It is a judgement,
// not a calculation: see the tests in the body. Reports its own errors.
bool PartnerWinningFourth();

}  // namespace Parlino
