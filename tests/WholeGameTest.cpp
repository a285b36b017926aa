// Whole hands and games through the table model, with its invariants looked at on the way.
#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "engine/TrickFlow.h"
#include "game/Game.h"
#include "persistence/DataFiles.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"
#include "tools/chaos/TableRules.h"

namespace Parlino {
namespace {

// Plays until the player leaves, looking at the invariants at every chance.
int PlayLookingOn(HeadlessGame& game, South& player) {
  game.platform.script = [&](std::uint32_t atMostMs) {
    if (Pack[1].Suit != 0) {
      ASSERT_EQ(BrokenTableRule(), "");
    }
    player.OnEvents(atMostMs);
  };
  return RunGame();
}

TEST(WholeGame, PlaysManyHandsAndSavesOnLeaving) {
  HeadlessGame game(11);
  South player(60);
  EXPECT_EQ(PlayLookingOn(game, player), 0);
  EXPECT_EQ(player.HandsScored(), 60);
  EXPECT_FALSE(Recorded(game.platform, "critical box"));
  EXPECT_LE(game.platform.deepest, 3) << "calls must not nest with the number of hands";
  EXPECT_EQ(game.platform.files[std::string(SaveGameFile)],
            std::to_string(OurPoints) + "," + std::to_string(TheirPoints) + ",#TRUE#\r\n");
  const std::vector<std::string> closed(game.platform.record.end() - 4, game.platform.record.end());
  EXPECT_EQ(closed, (std::vector<std::string>{"closed: frmAbout", "closed: MFormDeluxe",
                                              "closed: FrmMain", "closed: frmHelp"}));
}

TEST(WholeGame, CallsDoNotNestOverAThousandHands) {
  HeadlessGame game(12);
  South player(1000, 1);
  game.platform.keepsRecord = false;
  std::set<const void*> placesOnStack;
  game.platform.script = [&](std::uint32_t atMostMs) {
    if (MFormDeluxe.Visible) placesOnStack.insert(__builtin_frame_address(0));
    player.OnEvents(atMostMs);
  };
  EXPECT_EQ(RunGame(), 0);
  EXPECT_LE(placesOnStack.size(), 2U) << "one for the scores, one for the end of a game";
  EXPECT_LE(game.platform.deepest, 3);
}

TEST(WholeGame, DealsInTurnWithinAGameAndShowsWhatHappened) {
  HeadlessGame game(13);
  South player(8);
  Integer lastDealer = -1;
  int handsInTurn = 0;
  player.onDialog = [&] {
    if (lastDealer >= 0) {
      ++handsInTurn;
      EXPECT_EQ(Dealer, SeatAfter(lastDealer));
    }
    lastDealer = GameInProgress == True ? Dealer : Integer{-1};
    EXPECT_EQ(Table.LstCardsPlayed.Count(), 65);
    EXPECT_EQ(Table.LblPNBid.Caption, std::to_string(OurBid));
    EXPECT_EQ(Table.LblWEBid.Caption, std::to_string(TheirBid));
    EXPECT_EQ(Table.StatusBar1[2].Caption, "Your team points:- " + std::to_string(OurPoints));
    EXPECT_EQ(Table.StatusBar1[3].Caption, "Their team points:- " + std::to_string(TheirPoints));
    EXPECT_EQ(Table.LblName[0].Caption, "Player bids 3");
    for (const PictureBox& card : Table.Cds) EXPECT_FALSE(card.Visible);
  };
  PlayLookingOn(game, player);
  EXPECT_GE(handsInTurn, 4);
}

TEST(WholeGame, BidsGoRoundFromTheSeatAfterTheDealer) {
  HeadlessGame game(17);
  South player(5);
  std::vector<Integer> order;
  player.onDialog = [&] {
    EXPECT_EQ(order, (std::vector<Integer>{SeatAfter(Dealer), SeatAfter(Dealer, 2),
                                           SeatAfter(Dealer, 3), Dealer}));
    order.clear();
  };
  game.platform.script = [&](std::uint32_t atMostMs) {
    for (Integer seat = Player; seat <= East; ++seat)
      if (Bids[seat] > 0 && std::ranges::count(order, seat) == 0) order.push_back(seat);
    player.OnEvents(atMostMs);
  };
  RunGame();
}

TEST(WholeGame, GoesOnFromASavedGameWithWestDealing) {
  HeadlessGame game(14);
  game.platform.files["SaveGame.dat"] = "120,80,#TRUE#\r\n";
  South player(1);
  Integer dealer = -1;
  int before = 0;
  player.onDialog = [&] {
    dealer = Dealer;
    before = OurPoints;
  };
  PlayLookingOn(game, player);
  EXPECT_EQ(dealer, West);
  EXPECT_EQ(before, 120 + OurHandScore);
}

struct EndCase {
  const char* what;
  int ours;
  int theirs;
  const char* title;
  int picture;
};

// Both teams bid a trick each and make it, whatever happens; the totals are set up so that the
// hand decides.
TEST(WholeGame, EndsTheGameOnlyAtThreeHundredAndApart) {
  for (const EndCase& example : {EndCase{"far from the target", 0, 0, "   Scores", 3},
                                 EndCase{"we are ahead", 2000, 0, "   Game Over", 1},
                                 EndCase{"they are ahead", 0, 2000, "   Game Over", 2},
                                 EndCase{"both past it", 2000, 3000, "   Game Over", 2}}) {
    HeadlessGame game(15);
    game.platform.files["SaveGame.dat"] =
        std::to_string(example.ours) + "," + std::to_string(example.theirs) + ",#TRUE#\r\n";
    South player(1, 1);
    const bool over = example.picture != 3;
    player.onDialog = [&] {
      EXPECT_EQ(MFormDeluxe.Label3, example.title) << example.what;
      EXPECT_EQ(MFormDeluxe.Picture, example.picture) << example.what;
      EXPECT_EQ(MFormDeluxe.AnswerToMark, 0) << "the first neither ends the program nor saves";
      EXPECT_EQ(game.platform.files["Points.dat"] != "0,0\r\n", over) << "the session may end now";
    };
    PlayLookingOn(game, player);
    EXPECT_EQ(GamesPlayed, over ? 1 : 0) << example.what;
    EXPECT_EQ(GamesWon, example.picture == 1 ? 1 : 0) << example.what;
    if (over) {
      EXPECT_EQ(game.platform.files["SaveGame.dat"], "0,0,#FALSE#\r\n") << example.what;
      EXPECT_EQ(game.platform.files["Points.dat"], std::to_string(GamesWon) + ",1\r\n")
          << example.what;
    }
  }
}

// Two runs of one seed differ only in the totals they begin with: the first tells what the hand
// scores, the second begins so that it ends level.
TEST(WholeGame, EqualTotalsGoOnHoweverHigh) {
  HeadlessGame first(16);
  first.platform.files["SaveGame.dat"] = "0,0,#TRUE#\r\n";
  South firstPlayer(1);
  PlayLookingOn(first, firstPlayer);
  const int lead = OurPoints - TheirPoints;
  HeadlessGame second(16);
  second.platform.files["SaveGame.dat"] = "1000," + std::to_string(1000 + lead) + ",#TRUE#\r\n";
  South secondPlayer(1);
  secondPlayer.onDialog = [] {
    EXPECT_EQ(OurPoints, TheirPoints);
    EXPECT_EQ(MFormDeluxe.Label3, "   Scores");
  };
  PlayLookingOn(second, secondPlayer);
  EXPECT_EQ(secondPlayer.HandsScored(), 1);
}

TEST(WholeGame, AScoreThatCannotBeSavedIsNotThrownAway) {
  HeadlessGame game(18);
  int dialogs = 0;
  Integer points = 0;
  South player(1);
  player.onDialog = [&] {
    if (dialogs == 1) {
      EXPECT_EQ(OurPoints, points);
    }
    points = OurPoints;
    game.platform.filesCanBeWritten = ++dialogs > 1;
  };
  EXPECT_EQ(PlayLookingOn(game, player), 0);
  EXPECT_EQ(dialogs, 2) << "asked again after the failure, then saved and left";
  EXPECT_TRUE(Recorded(game.platform, "SaveGame.dat cannot be written"));
  EXPECT_TRUE(game.platform.files["SaveGame.dat"].starts_with(std::to_string(points) + ","));
}

}  // namespace
}  // namespace Parlino
