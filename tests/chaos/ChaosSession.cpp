#include "tests/chaos/ChaosSession.h"

#include <algorithm>
#include <utility>

#include "persistence/commands/PlayerCommands.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/chaos/TableRules.h"

namespace Parlino {
namespace {

constexpr std::size_t LogLength = 40;

// The table waits, in it a hand, in it the note of a card that may not be played, in it the pause
// of a card, in it a dialog.
constexpr int MostNested = 5;

// So many chances make some hundred hands; one of them at the least must be scored.
constexpr long MostChancesWithoutScores = 300'000;

// The saved game and the statistics may change from the moment the game takes up the command,
// which may have come by any key.
Referee* watchInUse = nullptr;

void WatchLoading() {
  watchInUse->ExpectLoad();
  MnuLoad_Click();
}

void WatchErasing() {
  watchInUse->ExpectErasing();
  ErasePoints_Click();
}

}  // namespace

ChaosSession::ChaosSession(std::uint64_t seed, std::function<bool(const Deed&)> doDeed)
    : person(seed), doDeed_(std::move(doDeed)) {}

void ChaosSession::BeginProgram() {
  watchInUse = &watch;
  Events.MenuClick[static_cast<int>(MenuItem::MnuLoad)] = WatchLoading;
  Events.MenuClick[static_cast<int>(MenuItem::ErasePoints)] = WatchErasing;
  watch.BeginProgram();
  ++programs_;
}

void ChaosSession::OnChance(int depth) {
  ++chances_;
  LookForScores();
  deepest_ = std::max(deepest_, depth);
  CheckRules(depth);
  for (int count = person.ChooseCount(); count > 0; --count) {
    Do(person.ChooseDeed());
    CheckRules(depth);
  }
}

void ChaosSession::LookForScores() {
  if (handsScored_ != watch.HandsScored()) chancesAtScores_ = chances_;
  handsScored_ = watch.HandsScored();
  Require(chances_ - chancesAtScores_ < MostChancesWithoutScores, "hands come to their end");
}

void ChaosSession::Do(const Deed& deed) {
  Note(TextOf(deed));
  if (doDeed_(deed)) ++deedsTaken_;
}

void ChaosSession::Note(const std::string& event) {
  ++eventsRaised_;
  if (log_.size() == LogLength) log_.pop_front();
  log_.push_back(event);
}

void ChaosSession::OnMsgBox(std::string_view text) {
  Require(!text.starts_with("Unexpected error"), std::string(text));
  Require(!text.starts_with(" the hand is over"), std::string(text));
}

void ChaosSession::OnEnd() {
  const std::uint64_t changes = Table.Changes;
  bool isTaken = false;
  for (int count = 0; count < 100; ++count) isTaken = doDeed_(person.ChooseDeed()) || isTaken;
  Require(!isTaken && Table.Changes == changes, "nothing happens after the end of the program");
}

void ChaosSession::Require(bool holds, const std::string& rule) const {
  if (!holds) throw RuleBroken{rule};
}

void ChaosSession::CheckRules(int depth) {
  Require(depth <= MostNested, "what waits is nested " + std::to_string(MostNested) + " deep");
  for (const std::string_view broken : {BrokenTableRule(), watch.Look()})
    Require(broken.empty(), std::string(broken));
}

void ChaosSession::PrintLog(std::ostream& out) const {
  for (const std::string& line : log_) out << "  " << line << "\n";
}

void ChaosSession::PrintFigures(std::ostream& out) const {
  out << "programs begun    " << programs_ << "\n"
      << "hands dealt       " << watch.HandsDealt() << "\n"
      << "hands scored      " << watch.HandsScored() << "\n"
      << "games ended       " << watch.GamesEnded() << "\n"
      << "chances to act    " << chances_ << "\n"
      << "events raised     " << eventsRaised_ << "\n"
      << "of these taken    " << deedsTaken_ << "\n"
      << "deepest nesting   " << deepest_ << "\n";
}

}  // namespace Parlino
