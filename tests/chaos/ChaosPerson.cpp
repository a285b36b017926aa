#include "tests/chaos/ChaosPerson.h"

#include <string_view>

#include "engine/RoundDriver.h"
#include "engine/state/GameState.h"
#include "engine/state/Questions.h"
#include "platform/Platform.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

// Of a kind of deed, how many numbers there are, from which on, and how often it is done. What ends
// a hand or the program is rare, or no hand would ever be scored.
struct Habit {
  DeedKind kind;
  int first;
  int count;
  int weight;
};

constexpr int NumberOf(MenuItem item) {
  return static_cast<int>(item);
}

constexpr Habit Habits[] = {
    {DeedKind::ClickCard, 1, CardsInPack, 3000},
    {DeedKind::HoverCard, 1, CardsInPack, 600},
    {DeedKind::ClickBid, 1, TricksInHand, 400},
    {DeedKind::PressAnswer, 0, 3, 200},
    {DeedKind::ClickAnswer, 0, 3, 400},
    {DeedKind::ClickDontShow, 0, 1, 40},
    {DeedKind::CloseHelp, 0, 1, 60},
    {DeedKind::CloseAbout, 0, 1, 60},
    {DeedKind::ClickSysInfo, 0, 1, 20},
    {DeedKind::CloseTable, 0, 1, 1},
    {DeedKind::ChooseMenu, NumberOf(MenuItem::MnuNew), 1, 2},
    {DeedKind::ChooseMenu, NumberOf(MenuItem::MnuLoad), 1, 1},
    {DeedKind::ChooseMenu, NumberOf(MenuItem::MnuSave), 1, 20},
    {DeedKind::ChooseMenu, NumberOf(MenuItem::MnuExit), 1, 1},
    {DeedKind::ChooseMenu, NumberOf(MenuItem::MnuRules),
     NumberOf(MenuItem::ErasePoints) - NumberOf(MenuItem::MnuRules) + 1, 200},
};

constexpr int TotalWeight = [] {
  int total = 0;
  for (const Habit& habit : Habits) total += habit.weight;
  return total;
}();

constexpr std::string_view OddNames[] = {
    "",
    "Wanda",
    "Smith, John",
    "\"quoted\"",
    "two\r\nlines\tand a tab",
    "J\xC3\xBCrgen \xE2\x99\xA5 \xF0\x9F\x83\x8F",
    "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
    "broken \xFF\xC3",
    "a played the Ace of Spades",
    "=======================================",
    "#TRUE#",
    "   ",
    "line\xE2\x80\xA8separator\x7F",
};

}  // namespace

ChaosPerson::ChaosPerson(std::uint64_t seed) {
  generator_.Seed(~seed);
}

int ChaosPerson::ChooseCount() {
  int count = 0;
  while (count < 8 && Once(2)) ++count;
  return count;
}

Deed ChaosPerson::ChooseDeed() {
  if (!Once(10)) last_ = Once(4) ? ChooseWanted() : ChooseAnything();
  return last_;
}

Deed ChaosPerson::ChooseAnything() {
  int place = generator_.NextBelow(TotalWeight);
  const Habit* habit = Habits;
  while (place >= habit->weight) place -= (habit++)->weight;
  return {habit->kind, habit->first + generator_.NextBelow(habit->count)};
}

Deed ChaosPerson::ChooseWanted() {
  if (MFormDeluxe.Visible) return {DeedKind::ClickAnswer, generator_.NextBelow(8) / 7};
  if (Table.FramBids.Visible) return {DeedKind::ClickBid, 1 + generator_.NextBelow(3)};
  if (HandInProgress) return {DeedKind::ClickCard, 1 + generator_.NextBelow(CardsInPack)};
  return {DeedKind::ChooseMenu, NumberOf(Once(4) ? MenuItem::MnuLoad : MenuItem::MnuNew)};
}

std::uint32_t ChaosPerson::ChooseWait(std::uint32_t atMostMs) {
  constexpr std::uint32_t anHour = 3'600'000;
  if (atMostMs == Forever) return Forever;
  if (Once(5000)) return atMostMs + anHour;
  if (atMostMs <= 1 || Once(3)) return atMostMs;
  return static_cast<std::uint32_t>(NextBelow(static_cast<int>(atMostMs)));
}

std::string ChaosPerson::ChooseName() {
  if (Once(20)) return std::string(5000, 'x');
  if (Once(20)) return std::string("nul\0inside", 10);
  return std::string(OddNames[generator_.NextBelow(static_cast<int>(std::size(OddNames)))]);
}

}  // namespace Parlino
