// A robot's choice wherever it sits in the trick.
#pragma once

#include "robots/FourthHand.h"
#include "robots/Lead.h"
#include "robots/SecondAndThirdHand.h"

namespace Parlino {

// The card that the seat plays at `position` 1..4, by the rules of that position.
inline Integer ChooseCardAt(int position, Integer seat) {
  switch (position) {
    case 1:
      return ChooseFirstCard(seat);
    case 2:
      return ChooseSecondCard(seat);
    case 3:
      return ChooseThirdCard(seat);
    default:
      return ChooseFourthCard(seat);
  }
}

}  // namespace Parlino
