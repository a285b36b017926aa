// Commands where they may not be, and more of them than anybody chooses. tests/chaos/ raises all of
// them at any moment.
#include <cerrno>
#include <gtest/gtest.h>
#include <set>

#include "engine/state/Questions.h"
#include "game/Game.h"
#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/chaos/TableRules.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

TEST(Interruption, NeitherHandsNorNewGamesNestOrLeaveAnythingBehind) {
  HeadlessGame game(22);
  game.platform.keepsRecord = false;
  int newGames = 0;
  int chances = 0;
  std::string rule;
  std::set<const void*> placesOnStack;
  South south(1000, 1);
  game.platform.script = [&](std::uint32_t atMostMs) {
    if (MFormDeluxe.Visible) placesOnStack.insert(__builtin_frame_address(0));
    if (Pack[1].Suit != 0 && rule.empty()) rule = BrokenTableRule();
    const auto chooseNewGame = [&] {
      ++newGames;
      ChooseMenu(MenuItem::MnuNew);
    };
    const bool isMoment = Table.FramBids.Visible ? newGames % 3 != 0 : ++chances % 149 == 0;
    if (HandInProgress && newGames < 1000 && isMoment) chooseNewGame();
    south.OnEvents(atMostMs);
    if (PlayerHasPlayed != False && newGames % 10 != 0 && newGames < 1000)
      chooseNewGame();  // right after a click
  };
  EXPECT_EQ(RunGame(), 0);
  EXPECT_EQ(newGames, 1000);
  EXPECT_EQ(rule, "");
  EXPECT_LE(placesOnStack.size(), 2U) << "one for the scores, one for the end of a game";
  EXPECT_LE(game.platform.deepest, 4);
}

TEST(Interruption, AnErrorWhileNothingIsUnderWayIsReportedAndTheGameGoesOn) {
  HeadlessGame game(25);
  South south(1);
  Events.MenuClick[static_cast<int>(MenuItem::MnuView)] = [] { throw GameError(EIO, "Broken"); };
  bool isBroken = false;
  game.platform.script = [&](std::uint32_t atMostMs) {
    if (!std::exchange(isBroken, true)) ChooseMenu(MenuItem::MnuView);
    south.OnEvents(atMostMs);
  };
  EXPECT_EQ(RunGame(), 0);
  EXPECT_EQ(south.HandsScored(), 1);
  EXPECT_TRUE(Recorded(game.platform, "Unexpected error in procedure: RunGame\nError #5: Broken"));
}

TEST(Interruption, NothingIsLetInBehindADialogNorBeforeTheGameGoesOnWithItsAnswer) {
  HeadlessGame game(24);
  HeadlessGame::Load();
  game.platform.files["/parlino/ParlinoHelp.rtf"] = "{\\rtf1 Rules}";
  for (const MenuItem item : {MenuItem::MnuRules, MenuItem::MnuAbout}) ChooseMenu(item);
  const auto isClosed = [] {
    return !ChooseMenu(MenuItem::MnuNew) && !CloseTableWindow() && !ClickDontShow() &&
           !ClickCard(1) && !CloseHelp() && !CloseAbout() && !ClickSysInfo();
  };
  bool isAsked = false;
  game.platform.script = [&](std::uint32_t) {
    isAsked = true;
    EXPECT_TRUE(isClosed());
    EXPECT_FALSE(ClickAnswer(1)) << "the button is not shown";
    EXPECT_TRUE(ClickAnswer(0));
    EXPECT_FALSE(ClickAnswer(0)) << "the dialog is gone";
    EXPECT_TRUE(isClosed());
  };
  ChooseMenu(MenuItem::MnuView);
  EXPECT_TRUE(isAsked);
  EXPECT_TRUE(CloseHelp() && ClickSysInfo() && CloseAbout());
}

}  // namespace
}  // namespace Parlino
