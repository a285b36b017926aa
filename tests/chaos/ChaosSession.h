// The person who does anything, the referee who watches, and the log of what was done last.
#pragma once

#include <deque>
#include <functional>
#include <ostream>
#include <string>

#include "tests/chaos/ChaosPerson.h"
#include "tests/chaos/Referee.h"

namespace Parlino {

// Thrown at a broken rule. It is no std::exception, so that no error report of the game takes it
// for one of its own.
struct RuleBroken {
  std::string rule;
};

class ChaosSession {
 public:
  // `doDeed` does a deed to the program and says whether it was taken.
  ChaosSession(std::uint64_t seed, std::function<bool(const Deed&)> doDeed);

  // The program begins, for the first time or again.
  void BeginProgram();
  // A chance to process events, `depth` of them inside each other: some deeds, each followed by a
  // look at every rule.
  void OnChance(int depth);
  // A look at every rule, `depth` as above.
  void CheckRules(int depth);
  // Something is done that is no deed; and how the deed noted last is done.
  void Note(const std::string& event);
  void AddToNote(const std::string& manner) { log_.back() += ", " + manner; }
  // A box tells the player something.
  void OnMsgBox(std::string_view text);
  // The program has ended: nothing that is done now may change anything.
  void OnEnd();

  [[nodiscard]] int ProgramsBegun() const { return programs_; }
  // A rule of the platform's own.
  void Require(bool holds, const std::string& rule) const;
  // What was done last, and what has been done altogether.
  void PrintLog(std::ostream& out) const;
  void PrintFigures(std::ostream& out) const;

  ChaosPerson person;
  Referee watch;

 private:
  void Do(const Deed& deed);
  void LookForScores();

  std::function<bool(const Deed&)> doDeed_;
  std::deque<std::string> log_;
  long eventsRaised_ = 0;
  long deedsTaken_ = 0;
  long chances_ = 0;
  int programs_ = 0;
  int handsScored_ = 0;
  long chancesAtScores_ = 0;
  int deepest_ = 0;
};

}  // namespace Parlino
