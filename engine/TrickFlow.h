// The flow of a hand: trick after trick, who won each, the score of the hand and the end of a game.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

// Plays the tricks of a hand, the first led by `leader`, and settles the hand. Returns when the
// player wants another hand; may throw HandAbandoned or ProgramEnded. Errors pass to the caller.
void LeadNextTrick(Integer leader);

// Plays one trick led by `leader`: the four turns, the winner, the counters, the trick pile. The
// winner becomes Leader.
void PlayTrick(Integer leader);

// Sets TrickWinner: the highest trump in the trick, or else the highest card of the led suit.
void GetTrickWinner();

// Tells the player that the hand is over when an error keeps the next one from starting.
void TellHandIsOver();

}  // namespace Parlino
