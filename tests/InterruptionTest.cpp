// Every command at every chance to process events: in each pause and wait of a hand, from the first
// card dealt to the score dialog.
#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>

#include "engine/RoundDriver.h"
#include "engine/state/Questions.h"
#include "game/Game.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"
#include "tools/chaos/TableRules.h"

namespace Parlino {
namespace {

struct Interruption {
  const char* name;
  void (*raise)();
  bool beginsNewHand;
  bool endsProgram;
};

void ClickEverything() {
  for (int card = 1; card <= CardsInPack; ++card) {
    if (PlayerTurn != False && Pack[card].Owner == Player) continue;  // that would be a play
    ClickCard(card);
    HoverCard(card);
  }
  ClickDontShow();
  ClickAnswer(2);
}

// Dialogs that a command opens are answered by the player below: the first button for "Load", and
// what `exitAnswer` says for "Exit".
int exitAnswer = 0;

const Interruption interruptions[] = {
    {"New Game", [] { ChooseMenu(MenuItem::MnuNew); }, true, false},
    {"Load Saved Game", [] { ChooseMenu(MenuItem::MnuLoad); }, true, false},
    {"Exit, then Yes Exit",
     [] {
       exitAnswer = 0;
       ChooseMenu(MenuItem::MnuExit);
     },
     false, true},
    {"Exit, then Carry On",
     [] {
       exitAnswer = 1;
       ChooseMenu(MenuItem::MnuExit);
     },
     false, false},
    {"close box, then Yes Exit",
     [] {
       exitAnswer = 0;
       CloseTableWindow();
     },
     false, true},
    {"close box, then Carry On",
     [] {
       exitAnswer = 1;
       CloseTableWindow();
     },
     false, false},
    {"a new name", [] { ChooseMenu(MenuItem::MnuNameBot1); }, false, false},
    {"Save Game", [] { ChooseMenu(MenuItem::MnuSave); }, false, false},
    {"View Statistics", [] { ChooseMenu(MenuItem::MnuView); }, false, false},
    {"Rules and Help", [] { ChooseMenu(MenuItem::MnuRules); }, false, false},
    {"stray clicks", ClickEverything, false, false},
};

// Plays one hand and raises the interruption at the chance number `moment`.
class InterruptedHand {
 public:
  InterruptedHand(const Interruption& interruption, int moment)
      : game_(21), interruption_(interruption), moment_(moment) {
    game_.platform.files["SaveGame.dat"] = "10,20,#TRUE#\r\n";
    game_.platform.answerInputBox = [](auto, auto, auto) { return "Wanda"; };
    player_.onDialog = [this] { handEnded_ = handEnded_ || IsScores(); };
    game_.platform.script = [this](std::uint32_t atMostMs) { OnEvents(atMostMs); };
  }

  // Whether the moment came within the hand.
  bool Play() {
    EXPECT_EQ(RunGame(), 0) << interruption_.name << " at " << moment_;
    return raised_;
  }

  void Check() const {
    const std::string where = std::string(interruption_.name) + " at " + std::to_string(moment_);
    EXPECT_FALSE(Recorded(game_.platform, "critical box")) << where;
    EXPECT_LE(game_.platform.deepest, 4) << where;
    EXPECT_FALSE(HandIsUnderWay()) << where;
    EXPECT_FALSE(Table.FrmMain.Visible) << where;
    EXPECT_EQ(handEnded_, !interruption_.endsProgram) << where;
    EXPECT_EQ(shuffles_, interruption_.beginsNewHand ? 2 : 1) << where;
  }

 private:
  static bool IsScores() {
    return MFormDeluxe.Label3 == "   Scores" || MFormDeluxe.Label3 == "   Game Over";
  }

  void OnEvents(std::uint32_t atMostMs) {
    if (Pack[1].Suit == 0 || chances_ < 0) return;
    CountShuffles();
    ASSERT_EQ(BrokenTableRule(), "") << interruption_.name << " at " << moment_;
    if (HandIsUnderWay() && !MFormDeluxe.Visible && ++chances_ == moment_) {
      raised_ = true;
      interruption_.raise();
    }
    if (MFormDeluxe.Visible && !IsScores())
      ClickAnswer(MFormDeluxe.Label3 == "   Really Exit?" ? exitAnswer : 0);
    else
      player_.OnEvents(atMostMs);
  }

  void CountShuffles() {
    shuffles_ = 0;
    for (const std::string& line : game_.platform.record) shuffles_ += line == "sound: Shuffle.wav";
  }

  HeadlessGame game_;
  South player_{1};
  const Interruption& interruption_;
  int moment_;
  int chances_ = 0;
  int shuffles_ = 0;
  bool raised_ = false;
  bool handEnded_ = false;
};

TEST(Interruption, EveryCommandAtEveryMomentOfAHand) {
  for (const Interruption& interruption : interruptions) {
    int moment = 1;
    while (true) {
      InterruptedHand hand(interruption, moment);
      if (!hand.Play()) break;
      hand.Check();
      ++moment;
      if (testing::Test::HasFailure()) return;
    }
    EXPECT_GT(moment, 200) << interruption.name << ": a hand has more chances than this";
  }
}

TEST(Interruption, AThousandNewGamesInARowDoNotNest) {
  HeadlessGame game(22);
  int newGames = 0;
  South player(1);
  game.platform.script = [&](std::uint32_t atMostMs) {
    if (HandIsUnderWay() && newGames < 1000 && game.platform.ticks % 7 != 0) {
      ++newGames;
      ChooseMenu(MenuItem::MnuNew);
    }
    player.OnEvents(atMostMs);
  };
  EXPECT_EQ(RunGame(), 0);
  EXPECT_EQ(newGames, 1000);
  EXPECT_LE(game.platform.deepest, 4);
}

TEST(Interruption, AnAbandonedBidLeavesNoPanelBehind) {
  HeadlessGame game(23);
  South player(1);
  bool abandoned = false;
  game.platform.script = [&](std::uint32_t atMostMs) {
    if (Table.FramBids.Visible && !abandoned) {
      abandoned = true;
      ChooseMenu(MenuItem::MnuNew);
    }
    if (abandoned && atMostMs != Forever) {
      EXPECT_FALSE(Table.FramBids.Visible);
    }
    player.OnEvents(atMostMs);
  };
  EXPECT_EQ(RunGame(), 0);
  EXPECT_TRUE(abandoned);
}

TEST(Interruption, AnErrorWhileNothingIsUnderWayIsReportedAndTheGameGoesOn) {
  HeadlessGame game(25);
  South player(1);
  Events.MenuClick[static_cast<int>(MenuItem::MnuView)] = [] { throw GameError(EIO, "Broken"); };
  int errors = 0;
  game.platform.script = [&](std::uint32_t atMostMs) {
    if (errors < 2) {
      ++errors;
      ChooseMenu(MenuItem::MnuView);
    }
    player.OnEvents(atMostMs);
  };
  EXPECT_EQ(RunGame(), 0);
  EXPECT_EQ(player.HandsScored(), 1);
  EXPECT_EQ(std::ranges::count(game.platform.record,
                               "critical box: Parlino: Unexpected error in procedure: RunGame\n"
                               "Error #5: Broken"),
            2);
}

TEST(Interruption, ADialogKeepsTheTableFromTakingInput) {
  HeadlessGame game(24);
  HeadlessGame::Load();
  bool asked = false;
  game.platform.script = [&](std::uint32_t) {
    asked = true;
    EXPECT_FALSE(ChooseMenu(MenuItem::MnuNew));
    EXPECT_FALSE(CloseTableWindow());
    EXPECT_FALSE(ClickAnswer(1)) << "the button is not shown";
    EXPECT_TRUE(ClickAnswer(0));
    EXPECT_FALSE(ClickAnswer(0)) << "the dialog is gone";
    EXPECT_FALSE(ChooseMenu(MenuItem::MnuView)) << "the game has not gone on with the answer yet";
  };
  ChooseMenu(MenuItem::MnuView);
  EXPECT_TRUE(asked);
}

}  // namespace
}  // namespace Parlino
