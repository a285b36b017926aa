#include "tools/selfplay/Jobs.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tools/selfplay/SessionProcess.h"

namespace Parlino {
namespace {

// The sessions' seeds are as far apart as those of a splitmix generator; the first is the run's
// own.
std::uint64_t SeedOfSession(std::uint64_t seedOfRun, int session) {
  return seedOfRun + static_cast<std::uint64_t>(session) * 0x9E3779B97F4A7C15;
}

class Run {
 public:
  Run(const SessionPlan& run, std::ostream* transcript) : run_(run), transcript_(transcript) {}

  Figures Play(int jobs, const std::function<void(long)>& onHands) {
    while (handsBegun_ < run_.hands || !playing_.empty()) {
      while (handsBegun_ < run_.hands && playing_.size() < static_cast<std::size_t>(jobs))
        BeginSession();
      ReadFromAny(playing_);
      TakeWhatHasEnded();
      onHands(figures_.hands);
    }
    return figures_;
  }

 private:
  void BeginSession() {
    SessionPlan plan = run_;
    plan.seed = SeedOfSession(run_.seed, sessionsBegun_);
    plan.handsBefore = handsBegun_;
    plan.hands = std::min(HandsInSession, run_.hands - handsBegun_);
    playing_.push_back(
        std::make_unique<SessionProcess>(plan, sessionsBegun_, transcript_ != nullptr));
    handsBegun_ += plan.hands;
    ++sessionsBegun_;
  }

  void TakeWhatHasEnded() {
    for (const auto& process : playing_)
      if (process->HasEnded()) figures_.Add(process->TakeResult(transcripts_[process->Number()]));
    std::erase_if(playing_, [](const auto& process) { return process->HasEnded(); });
    WriteTranscriptsInOrder();
  }

  void WriteTranscriptsInOrder() {
    while (!transcripts_.empty() && transcripts_.begin()->first == sessionsWritten_) {
      if (transcript_ != nullptr) *transcript_ << transcripts_.begin()->second;
      transcripts_.erase(transcripts_.begin());
      ++sessionsWritten_;
    }
  }

  SessionPlan run_;
  std::ostream* transcript_;
  std::vector<std::unique_ptr<SessionProcess>> playing_;
  std::map<int, std::string> transcripts_;  // of sessions that have ended before their turn
  Figures figures_;
  int handsBegun_ = 0;
  int sessionsBegun_ = 0;
  int sessionsWritten_ = 0;
};

}  // namespace

Figures PlaySessions(const SessionPlan& run, int jobs, std::ostream* transcript,
                     const std::function<void(long)>& onHands) {
  return Run(run, transcript).Play(jobs, onHands);
}

}  // namespace Parlino
