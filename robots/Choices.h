// What a robot plays, wherever it sits in the trick.
#pragma once

#include <string_view>

#include "engine/state/GameState.h"
#include "robots/FourthHand.h"
#include "robots/Lead.h"
#include "robots/SecondAndThirdHand.h"

namespace Parlino {

struct Choice {
  Integer (*card)(Integer seat);
  std::string_view procedure;  // errors in choosing and playing it are reported under this name
};

// The choice at a position 1..4.
inline const Choice& ChoiceAt(int position) {
  static constexpr Choice choices[] = {{ChooseFirstCard, "PlayFirstCard"},
                                       {ChooseSecondCard, "PlaySecondCard"},
                                       {ChooseThirdCard, "PlayThirdCard"},
                                       {ChooseFourthCard, "PlayFourthCard"}};
  return choices[position - 1];
}

}  // namespace Parlino
