// parlino-chaos: plays hands at the headless table while a person does anything at any time, and
// checks after every event that every rule of the table holds.
//
//   parlino-chaos --hands N --seed S
#include <string>

#include "engine/state/GameState.h"
#include "game/Game.h"
#include "headless/Headless.h"
#include "table/TableView.h"
#include "tests/chaos/ChaosRun.h"

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

class HeadlessChaos : public ChaosRun {
 public:
  explicit HeadlessChaos(const ChaosOptions& options) : ChaosRun(options) {
    platform_.mostIdleCalls = 100'000;
    platform_.files.emplace("/parlino/ParlinoHelp.rtf", "{\\rtf1 Bid, and make your bid.}");
    platform_.script = [this](std::uint32_t) { OnEvents(); };
    platform_.answerInputBox = [this](auto, auto, auto) { return AnswerBox(); };
    platform_.onMsgBox = [this](std::string_view text) { session.OnMsgBox(text); };
  }

 protected:
  void SetUp() override { SetUpGame(platform_); }

  bool Do(const Deed& deed) override {
    const bool isTaken = DoAtTable(deed);
    session.Require(!isTaken || deed.kind != DeedKind::ClickBid || Bids[Player] == deed.number,
                    "the bid is the one clicked");
    return isTaken;
  }

 private:
  void OnEvents() {
    EndWhenEnough();
    DisturbPlatform();
    session.OnChance(platform_.depth);
  }

  // The disk fills up and is emptied, the clock is set, the session ends.
  void DisturbPlatform() {
    ChaosPerson& person = session.person;
    if (person.Once(platform_.filesCanBeWritten ? 5000 : 500)) {
      platform_.filesCanBeWritten = !platform_.filesCanBeWritten;
      session.Note(platform_.filesCanBeWritten ? "the disk has room" : "the disk is full");
    }
    if (person.Once(1000)) {
      platform_.clockAtStart = static_cast<std::uint32_t>(person.NextBelow(86'400'000));
      session.Note("the clock is set");
    }
    if (person.Once(20'000)) EndSession();
  }

  [[noreturn]] void EndSession() {
    session.Note("the session ends");
    UnloadAllForms();
  }

  // The session of the desktop may end while a box waits.
  std::string AnswerBox() {
    if (session.person.Once(50)) EndSession();
    session.Note("answer a box");
    return session.person.ChooseName();
  }

  ChaosTable platform_{session.person};
};

}  // namespace
}  // namespace Parlino

int main(int count, char** arguments) {
  return Parlino::HeadlessChaos({count, arguments, "parlino-chaos"}).Play();
}
