#include "tests/chaos/Chaos.h"

#include <iostream>

#include "engine/state/ErrorReport.h"
#include "game/Game.h"
#include "headless/FirstFiles.h"
#include "persistence/commands/PlayerCommands.h"
#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/chaos/TableRules.h"
#include "tools/CommandLine.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

struct EnoughHands {};

constexpr std::size_t LogLength = 40;

// The table waits, in it a hand, in it the note of a card that may not be played, in it the pause
// of a card, in it a dialog.
constexpr int MostNested = 5;

// So many chances make some hundred hands; one of them at the least must be scored.
constexpr long MostChancesWithoutScores = 300'000;

Chaos* chaosInUse = nullptr;

// The saved game may change the totals from the moment the game takes up the command, which may
// have come by any key.
void WatchLoading() {
  chaosInUse->referee.ExpectLoad();
  MnuLoad_Click();
}

void ShowNoError(std::string_view procedure, const std::exception& error) {
  Require(false, JoinText({"no procedure fails, but ", procedure, ": ", error.what()}));
}

void WriteFirstFiles() {
  WriteFirstRecords();
  std::string help = "{\\rtf1 Bid, and make your bid.";
  for (int line = 0; line < 100; ++line) help += "\\par Once more: make your bid.";
  ThePlatform().ReplaceFile(HelpFile, help + "}");
}

fs::path Aside(const fs::path& path) {
  return path.string() + ".aside";
}

}  // namespace

Chaos::Chaos(int count, const char* const* arguments) {
  std::uint64_t seed = 0;
  if (!ParseCommandLine(count, arguments,
                        {{"--hands", TakeNumber(hands_, 1)}, {"--seed", TakeNumber(seed)}})) {
    std::cerr << "usage: " << arguments[0] << " --hands N --seed S\n";
    std::exit(2);
  }
  person = ChaosPerson(seed);
  DealGenerator.Seed(seed);
}

int Chaos::Play() {
  chaosInUse = this;
  try {
    while (handsScored_ < hands_) PlayProgram();
  } catch (const RuleBroken& broken) {
    Tell("broken rule: " + broken.rule);
    return 1;
  } catch (const std::exception& error) {
    Tell(std::string("no error leaves the program, but one did: ") + error.what());
    return 1;
  }
  std::cout << "programs begun    " << programs_ << "\n"
            << "hands dealt       " << referee.HandsDealt() << "\n"
            << "hands scored      " << referee.HandsScored() << "\n"
            << "games ended       " << referee.GamesEnded() << "\n"
            << "chances to act    " << chances_ << "\n"
            << "deeds done        " << deeds_ << "\n";
  return 0;
}

void Chaos::Tell(const std::string& what) const {
  std::cout << what << "\nin hand " << referee.HandsDealt() << ", after these events:\n";
  for (const std::string& line : log_) std::cout << "  " << line << "\n";
}

void Chaos::Note(const std::string& event) {
  if (log_.size() == LogLength) log_.pop_front();
  log_.push_back(event);
}

// From the start to the end that the person brings about. After it nothing that is done may change
// anything.
void Chaos::PlayProgram() {
  MendDisk();
  SetUp();
  if (programs_++ == 0) WriteFirstFiles();
  Events.MenuClick[static_cast<int>(MenuItem::MnuLoad)] = WatchLoading;
  ShowErrorReport = ShowNoError;
  referee.BeginProgram();
  try {
    RunGame();
  } catch (const EnoughHands&) {
    return;
  }
  LookAtEnd();
  const std::uint64_t changes = Table.Changes;
  for (int count = 0; count < 100; ++count)
    Require(!DoSomething() && Table.Changes == changes,
            "nothing happens after the end of the program");
  LookAtEnd();
}

void Chaos::OnChance(int depth) {
  ++chances_;
  LookForScores();
  DisturbDisk();
  CheckRules(depth);
  for (int count = 0; count < 8 && person.Once(2); ++count) {
    DoSomething();
    CheckRules(depth);
  }
}

void Chaos::LookForScores() {
  if (handsScored_ != referee.HandsScored()) chancesAtScores_ = chances_;
  handsScored_ = referee.HandsScored();
  if (handsScored_ >= hands_) throw EnoughHands{};
  Require(chances_ - chancesAtScores_ < MostChancesWithoutScores, "hands come to their end");
}

void Chaos::CheckRules(int depth) {
  Require(depth <= MostNested, "what waits is nested five deep");
  for (const std::string_view broken : {BrokenTableRule(), referee.Look()})
    Require(broken.empty(), broken);
}

// Now and then it is what the game waits for, so that hands and games come to their ends.
bool Chaos::DoSomething() {
  ++deeds_;
  if (!person.Once(4)) return DoAnything();
  const std::string wanted = ChooseWanted();
  Note(wanted);
  return Click(wanted);
}

std::string Chaos::ChooseWanted() {
  if (MFormDeluxe.Visible) return JoinText({"Label1(", person.Below(8) / 7, ")"});
  if (Table.FramBids.Visible) return JoinText({"LblBids(", 1 + person.Below(3), ")"});
  if (HandInProgress) return JoinText({"Cds(", 1 + person.Below(CardsInPack), ")"});
  return person.Once(4) ? "MnuLoad" : "MnuNew";
}

// The folder is missing for a while, or a record has a folder in its place.
void Chaos::DisturbDisk() {
  if (!missed_.empty() && person.Once(300)) return MendDisk();
  if (!missed_.empty() || !person.Once(3000)) return;
  const bool isFolder = person.Once(3);
  missed_ = isFolder ? folder.Path() : folder.Path() / person.OneOf(FirstRecords).file;
  fs::rename(missed_, Aside(missed_));
  if (!isFolder) fs::create_directory(missed_);
  Note("the disk is in trouble");
}

void Chaos::MendDisk() {
  if (missed_.empty()) return;
  fs::remove(missed_);
  fs::rename(Aside(missed_), missed_);
  missed_.clear();
  Note("the disk is as it was");
}

}  // namespace Parlino
