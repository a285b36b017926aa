// Runs of the program, one after the other, with a person who may do anything at any time: what the
// chaos without a window and the one at the window have in common.
#pragma once

#include <cstdint>
#include <string>

#include "tests/chaos/ChaosSession.h"

namespace Parlino {

struct ChaosOptions {
  int hands = 0;
  std::uint64_t seed = 0;
  // Prints the usage and ends the process if the line is not understood.
  ChaosOptions(int count, const char* const* arguments, const char* program);
};

class ChaosRun {
 public:
  explicit ChaosRun(const ChaosOptions& options);
  virtual ~ChaosRun() = default;

  // Plays until so many hands have been scored. Returns the exit status: 1 if a rule was broken,
  // which has then been reported.
  int Play();
  // Reports what went wrong, and the last events.
  void Tell(const std::string& what) const;

 protected:
  // Makes the platform ready for one run of the program.
  virtual void SetUp() = 0;
  virtual bool Do(const Deed& deed) = 0;
  // The program has ended.
  virtual void LookAtEnd() {}

  // Leaves the run when enough hands have been scored. To be called at every chance to act.
  void EndWhenEnough() const;

  ChaosSession session;

 private:
  struct EnoughHands {};
  void PlayProgram();

  int hands_;
};

}  // namespace Parlino
