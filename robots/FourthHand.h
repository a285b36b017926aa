// How a robot plays last to a trick.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// The card that the seat plays last, chosen from its own hand, the three cards before it and
// TrumpSuit alone. Changes nothing but the suit totals and, without a card of the led suit,
// PauseMs.
Integer ChooseFourthCard(Integer seat);

// Whether the second card, played by the fourth hand's partner, is judged to be winning. The
// judgement may be wrong: see the body. Reports its own errors.
bool PartnerWinningFourth();

}  // namespace Parlino
