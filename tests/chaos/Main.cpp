// parlino-chaos: plays hands at the headless table while a person does anything at any time, and
// checks after every event that every rule of the table holds.
//
//   parlino-chaos --hands N --seed S
#include <algorithm>

#include "game/Game.h"
#include "headless/HeadlessInFolder.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/chaos/Chaos.h"

namespace Parlino {
namespace {

struct Deed {
  std::string_view control;
  int weight;               // how often it is done
  int first = 0, last = 0;  // the numbers that there are
  bool (*door)(int number) = [](int item) { return ChooseMenu(static_cast<MenuItem>(item)); };
};

// What ends a hand or the program is rare, or no hand would ever be scored.
constexpr Deed Deeds[] = {
    {"Cds", 3000, 1, CardsInPack, ClickCard},
    {"hover", 600, 1, CardsInPack, HoverCard},
    {"LblBids", 400, 1, TricksInHand, ClickBid},
    {"Label1", 400, 0, 2, ClickAnswer},
    {"press", 200, 0, 2, PressAnswer},
    {"CmdDontShow", 40, 0, 0, [](int) { return ClickDontShow(); }},
    {"btnClose", 60, 0, 0, [](int) { return CloseHelp(); }},
    {"cmdOK", 60, 0, 0, [](int) { return CloseAbout(); }},
    {"cmdSysInfo", 20, 0, 0, [](int) { return ClickSysInfo(); }},
    {"FrmMain", 1, 0, 0, [](int) { return CloseTableWindow(); }},
    {"MnuNew", 2},
    {"MnuLoad", 1, 1, 1},
    {"save", 20, 2, 2},
    {"exit", 1, 3, 3},
    {"other menu", 200, 4, 11},
};

// The table without a window, with many chances to act in every pause.
class HeadlessChaos : public Chaos, public HeadlessInFolder {
 public:
  HeadlessChaos(int count, const char* const* arguments)
      : Chaos(count, arguments), HeadlessInFolder(folder.Path()) {
    programFolder = folder.Path() / "";
    mostIdleCalls = 100'000;
    script = [this](auto) {
      if (person.Once(1000)) clockAtStart = static_cast<std::uint32_t>(person.Below(86'400'000));
      if (person.Once(20'000)) EndSession();
      OnChance(depth);
    };
  }

  void ProcessEvents(std::uint32_t atMostMs) override {
    HeadlessInFolder::ProcessEvents(person.ChooseWait(atMostMs));
  }
  // The session of the desktop may end while a box waits.
  std::string InputBox(std::string_view, std::string_view, std::string_view) override {
    if (person.Once(50)) EndSession();
    return person.ChooseName();
  }

 protected:
  void SetUp() override { SetUpGame(*this); }

  bool Click(const std::string& control) override {
    const std::size_t bracket = control.find('(');
    const auto deed = std::ranges::find(Deeds, control.substr(0, bracket), &Deed::control);
    return deed->door(bracket == control.npos ? deed->first
                                              : std::stoi(control.substr(bracket + 1)));
  }

  // Something new, or the same once more.
  bool DoAnything() override {
    if (!person.Once(10)) {
      last_ = person.OneByWeight(Deeds);
      number_ = last_.first + person.Below(last_.last - last_.first + 1);
    }
    Note(JoinText({last_.control, " ", number_}));
    return last_.door(number_);
  }

 private:
  [[noreturn]] void EndSession() {
    Note("the session ends");
    UnloadAllForms();
  }

  Deed last_ = Deeds[0];
  int number_ = 1;
};

}  // namespace
}  // namespace Parlino

int main(int count, char** arguments) {
  return Parlino::HeadlessChaos(count, arguments).Play();
}
