// A run that is divided into sessions, several of which are played at the same time.
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>

#include "tools/selfplay/Session.h"

namespace Parlino {

// The last session of a run may be shorter. How long a session is changes every run with --jobs.
inline constexpr int HandsInSession = 2500;

// Plays the run as sessions, each with a seed of its own made from the run's, at most `jobs` of
// them at a time, each in a process of its own because there is only one game in a process. The
// transcript and the figures do not depend on `jobs`. Calls `onHands` after every session with the
// number of hands played by then. Raises std::runtime_error if a session does not come to its end.
Figures PlaySessions(const SessionPlan& run, int jobs, std::ostream* transcript,
                     const std::function<void(long handsPlayed)>& onHands);

}  // namespace Parlino
