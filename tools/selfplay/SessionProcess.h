// A session in a process of its own, which sends what it has to say through a pipe.
#pragma once

#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

#include "tools/selfplay/Session.h"

namespace Parlino {

class SessionProcess {
 public:
  // Starts to play. Raises std::runtime_error if the system has no process or pipe left.
  SessionProcess(const SessionPlan& plan, int number, bool isTranscribed);
  SessionProcess(const SessionProcess&) = delete;
  SessionProcess& operator=(const SessionProcess&) = delete;
  // Ends the process if it is still playing.
  ~SessionProcess();

  [[nodiscard]] int Number() const { return number_; }
  [[nodiscard]] int Pipe() const { return pipe_; }
  [[nodiscard]] bool HasEnded() const { return hasEnded_; }

  // Takes what has arrived in the pipe; waits if nothing has.
  void Read();

  // The figures of a session that has ended, and its transcript. Raises std::runtime_error if the
  // process died or did not play all hands.
  Figures TakeResult(std::string& transcript);

 private:
  SessionPlan plan_;
  int number_;
  int pipe_ = -1;
  pid_t process_ = -1;
  bool hasEnded_ = false;
  std::string received_;
};

// Waits until at least one of the sessions has sent something or ended, and reads it.
void ReadFromAny(const std::vector<std::unique_ptr<SessionProcess>>& sessions);

}  // namespace Parlino
