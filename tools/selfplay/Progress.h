// How far a run has come, on the terminal.
#pragma once

#include <chrono>

namespace Parlino {

// Shows one line on the error output, which is rewritten in place and wiped out at the end: only on
// a terminal, and only when the run takes longer than a second.
class Progress {
 public:
  explicit Progress(long hands);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  void Show(long handsPlayed);

 private:
  long hands_;
  bool isOnTerminal_;
  bool isShown_ = false;
  std::chrono::steady_clock::time_point next_;
};

}  // namespace Parlino
