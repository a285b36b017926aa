#include "tools/selfplay/Progress.h"

#include <cstdio>
#include <unistd.h>

namespace Parlino {
namespace {

using Clock = std::chrono::steady_clock;

}  // namespace

Progress::Progress(long hands)
    : hands_(hands),
      isOnTerminal_(isatty(STDERR_FILENO) != 0),
      next_(Clock::now() + std::chrono::seconds(1)) {}

Progress::~Progress() {
  if (isShown_) std::fputs("\r\033[K", stderr);
}

void Progress::Show(long handsPlayed) {
  if (!isOnTerminal_ || Clock::now() < next_) return;
  std::fprintf(stderr, "\r%ld of %ld hands, %ld %%", handsPlayed, hands_,
               100 * handsPlayed / hands_);
  isShown_ = true;
  next_ = Clock::now() + std::chrono::milliseconds(200);
}

}  // namespace Parlino
