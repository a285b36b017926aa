// parlino-chaos: plays hands at the headless table while a person does anything at any time, and
// checks after every event that every rule of the table holds.
//
//   parlino-chaos --hands N --seed S
#include <exception>
#include <iostream>
#include <string>

#include "engine/Generator.h"
#include "engine/state/Errors.h"
#include "engine/state/GameState.h"
#include "game/Game.h"
#include "headless/Headless.h"
#include "table/TableView.h"
#include "tests/chaos/ChaosSession.h"
#include "tools/CommandLine.h"

namespace Parlino {
namespace {

// A platform with many chances in every pause.
class ChaosTable : public HeadlessPlatform {
 public:
  explicit ChaosTable(ChaosPerson& person) : person_(person) {}
  void ProcessEvents(std::uint32_t atMostMs) override {
    HeadlessPlatform::ProcessEvents(person_.ChooseWait(atMostMs));
  }

 private:
  ChaosPerson& person_;
};

class HeadlessChaos {
 public:
  HeadlessChaos(int hands, std::uint64_t seed)
      : hands_(hands), session_(seed, [this](const Deed& deed) { return Do(deed); }) {
    platform_.mostIdleCalls = 100'000;
    platform_.files.emplace("/parlino/ParlinoHelp.rtf", "{\\rtf1 Bid, and make your bid.}");
    platform_.script = [this](std::uint32_t) { OnEvents(); };
    platform_.answerInputBox = [this](auto, auto, auto) { return AnswerBox(); };
    platform_.onMsgBox = [this](std::string_view text) { session_.OnMsgBox(text); };
  }

  int Play(std::uint64_t seed) {
    DealGenerator.Seed(seed);
    try {
      while (session_.watch.HandsScored() < hands_) PlayProgram();
    } catch (const RuleBroken& broken) {
      return Tell(broken.rule);
    } catch (const std::exception& error) {
      return Tell(std::string("no error leaves the program, but one did: ") + error.what());
    }
    session_.PrintFigures(std::cout);
    return 0;
  }

 private:
  struct EnoughHands {};

  int Tell(const std::string& rule) const {
    std::cout << "broken rule: " << rule << "\nin hand " << session_.watch.HandsDealt()
              << ", after these events:\n";
    session_.PrintLog(std::cout);
    return 1;
  }

  bool Do(const Deed& deed) {
    const bool isTaken = DoAtTable(deed);
    session_.Require(!isTaken || deed.kind != DeedKind::ClickBid || Bids[Player] == deed.number,
                     "the bid is the one clicked");
    return isTaken;
  }

  // From the start to the end that the person brings about.
  void PlayProgram() {
    SetUpGame(platform_);
    session_.BeginProgram();
    try {
      RunGame();
    } catch (const EnoughHands&) {
      return;
    }
    session_.OnEnd();
  }

  void OnEvents() {
    if (session_.watch.HandsScored() >= hands_) throw EnoughHands{};
    DisturbPlatform();
    session_.OnChance(platform_.depth);
  }

  // The disk fills up and is emptied, the clock is set, the session ends.
  void DisturbPlatform() {
    ChaosPerson& person = session_.person;
    if (person.Once(platform_.filesCanBeWritten ? 5000 : 500)) {
      platform_.filesCanBeWritten = !platform_.filesCanBeWritten;
      session_.Note(platform_.filesCanBeWritten ? "the disk has room" : "the disk is full");
    }
    if (person.Once(1000)) {
      platform_.clockAtStart = static_cast<std::uint32_t>(person.NextBelow(86'400'000));
      session_.Note("the clock is set");
    }
    if (person.Once(20'000)) EndSession();
  }

  [[noreturn]] void EndSession() {
    session_.Note("the session ends");
    UnloadAllForms();
  }

  // The session of the desktop may end while a box waits.
  std::string AnswerBox() {
    if (session_.person.Once(50)) EndSession();
    session_.Note("answer a box");
    return session_.person.ChooseName();
  }

  int hands_;
  ChaosSession session_;
  ChaosTable platform_{session_.person};
};

}  // namespace
}  // namespace Parlino

int main(int count, char** arguments) {
  int hands = 0;
  std::uint64_t seed = 0;
  if (!Parlino::ParseCommandLine(
          count, arguments,
          {{"--hands", Parlino::TakeNumber(hands, 1)}, {"--seed", Parlino::TakeNumber(seed)}})) {
    std::cerr << "usage: parlino-chaos --hands N --seed S\n";
    return 2;
  }
  return Parlino::HeadlessChaos(hands, seed).Play(seed);
}
