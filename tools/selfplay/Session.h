// One session of self-play: a game set up afresh, and hand after hand played in it.
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>

#include "tools/selfplay/Figures.h"

namespace Parlino {

struct SessionPlan {
  std::uint64_t seed = 0;
  int handsBefore =
      0;  // played by the sessions before it; the numbers of its hands go on from there
  int hands = 0;
  bool isSouthARobot = false;
};

// Plays the session and writes its hands to the transcript, if there is one; calls `onHand` after
// each. Raises std::runtime_error when the hands come to no end.
Figures PlaySession(const SessionPlan& plan, std::ostream* transcript,
                    const std::function<void(long handsPlayed)>& onHand);

}  // namespace Parlino
