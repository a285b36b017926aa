// The two questions about cards that robots ask in the course of a trick. Each stands for a
// question that changes nothing, and reports its own errors.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// HoldsLedSuit; when the answer is no, PauseMs is put back to DefaultPauseMs.
bool HasStartSuitQuery(Integer seat);

// Whether the card of this value and suit has been played; false for what is no card.
bool CardGoneQuery(Integer value, Integer suit);

}  // namespace Parlino
