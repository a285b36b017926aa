// Runs of the program, one after the other, in which a person does anything at any time while the
// rules of the table are watched: what the chaos without a window and the one at the window have in
// common. A seed repeats a run.
#pragma once

#include <deque>
#include <filesystem>
#include <string>

#include "tests/chaos/ChaosPerson.h"
#include "tests/chaos/Referee.h"
#include "tests/support/TemporaryFolder.h"

namespace Parlino {

class Chaos {
 public:
  // Takes "--hands N --seed S". Prints the usage and ends the process if the line is another one.
  Chaos(int count, const char* const* arguments);
  virtual ~Chaos() = default;

  // Plays until so many hands have been scored. Returns the exit status: 1 if a rule was broken,
  // which has then been reported.
  int Play();

  // A chance to process events, `depth` of them inside each other: some deeds, each followed by a
  // look at every rule. Leaves the run when enough hands have been scored.
  void OnChance(int depth);
  // A look at every rule, `depth` as above; a note of what is done, for the report.
  void CheckRules(int depth);
  void Note(const std::string& event);

  ChaosPerson person{0};
  Referee referee;

 protected:
  // Makes the platform ready for one run of the program.
  virtual void SetUp() = 0;
  // Each says whether there was something to do it to: clicks this control, "Cds(17)" or a command
  // of the menus, because the game waits for it; and does anything else.
  virtual bool Click(const std::string& control) = 0;
  virtual bool DoAnything() = 0;
  // The program has ended.
  virtual void LookAtEnd() {}

  TemporaryFolder folder;  // of the program

 private:
  void Tell(const std::string& what) const;
  void PlayProgram();
  bool DoSomething();
  std::string ChooseWanted();
  void DisturbDisk();
  void MendDisk();
  void LookForScores();

  int hands_ = 0;
  std::filesystem::path missed_;  // what is not at its place on the disk
  std::deque<std::string> log_;
  long chances_ = 0, chancesAtScores_ = 0, deeds_ = 0;
  int programs_ = 0, handsScored_ = 0;
};

}  // namespace Parlino
