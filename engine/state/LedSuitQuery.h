// The two questions about cards that robots ask during a trick. Both report their own errors.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// Whether the seat holds a card of the led suit. If not, PauseMs is reset to DefaultPauseMs.
bool HasStartSuitQuery(Integer seat);

// Whether the card of this value and suit has been played; false if there is no such card.
bool CardGoneQuery(Integer value, Integer suit);

}  // namespace Parlino
