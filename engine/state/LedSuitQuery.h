// The question about the led suit that robots ask during a trick, and the human's click as well. It
// stands apart from the other questions because it resets the pause.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// Whether the seat holds a card of the led suit. If not, PauseMs is reset to DefaultPauseMs.
// Reports its own errors.
bool HasStartSuitQuery(Integer seat);

}  // namespace Parlino
