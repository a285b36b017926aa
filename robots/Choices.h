// What a robot plays, wherever it sits in the trick.
#pragma once

#include "robots/FourthHand.h"
#include "robots/Lead.h"
#include "robots/SecondAndThirdHand.h"

namespace Parlino {

// The card that a robot at `seat` plays at a position 1..4 of the trick.
inline Integer ChooseRobotsCard(int position, Integer seat) {
  constexpr Integer (*choices[])(Integer seat) = {ChooseFirstCard, ChooseSecondCard,
                                                  ChooseThirdCard, ChooseFourthCard};
  return choices[position - 1](seat);
}

}  // namespace Parlino
