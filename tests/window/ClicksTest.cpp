// What a person does with the mouse and the keys, and the event that results from it.
#include <gtest/gtest.h>
#include <string>

#include <QTest>

#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

std::string raised;

void Note(const char* event, int number) {
  raised.append(event).append(std::to_string(number)).append(" ");
}

class Clicks : public testing::Test {
 protected:
  Clicks() {
    game.Load();
    raised.clear();
    Events.Cds_Click = [](Integer card) { Note("card ", card); };
    Events.Cds_MouseMove = [](Integer card) { Note("over ", card); };
    Events.LblBids_Click = [](Integer tricks) { Note("bid ", tricks); };
    Events.CmdDontShow_Click = [] { Note("don't show ", 0); };
  }

  void ShowTable() {
    Hide(Table.LblIntro);
    PlacePackDeal();
    for (const int card : {5, 6, 7}) {
      Pack[card].Owner = Player;
      SetPicture(Table.Cds[card], ToInteger(card));
    }
    ShowPlayerHand();
    Show(Table.FramBids);
    game.Turn();
  }

  WindowGame game;
};

TEST_F(Clicks, NeedTheLeftButtonPressedAndLetGoOnTheSeenPartOfOneCard) {
  ShowTable();
  QWidget& card = game.FindMember("Cds", 5);
  constexpr QPoint seen(5, 40);
  constexpr QPoint coveredByNext(60, 40);
  constexpr QPoint outside(5, 200);
  const auto dragTo = [&](QPoint end) {
    QTest::mousePress(&card, Qt::LeftButton, {}, seen);
    QTest::mouseRelease(&card, Qt::LeftButton, {}, end);
  };
  dragTo(coveredByNext);
  dragTo(outside);
  QTest::mouseClick(&card, Qt::RightButton, {}, seen);
  QTest::mouseRelease(&card, Qt::LeftButton, {}, seen);
  game.Turn();
  EXPECT_EQ(raised, "");
  dragTo(seen);
  game.Turn();
  EXPECT_EQ(raised, "card 5 ");
}

TEST_F(Clicks, AMouseMovingOverACardIsReportedOnceATurn) {
  ShowTable();
  QWidget& card = game.FindMember("Cds", 6);
  for (const int x : {2, 4, 6}) QTest::mouseMove(&card, {x, 40});
  game.Turn();
  EXPECT_EQ(raised, "over 6 ");
}

TEST_F(Clicks, EveryBidButtonBidsItsNumber) {
  ShowTable();
  std::string expected;
  for (int tricks = 1; tricks <= TricksInHand; ++tricks) {
    Click(game.FindMember("LblBids", tricks));
    expected += "bid " + std::to_string(tricks) + " ";
  }
  game.Turn();
  EXPECT_EQ(raised, expected);
}

TEST_F(Clicks, OnTheWelcomeButtonAreRaisedThoughTheInformationLineLiesThereToo) {
  QWidget& button = game.Find("CmdDontShow");
  QWidget& table = game.Find("Table");
  EXPECT_EQ(table.childAt(button.geometry().center()), &button);
  Click(button);
  game.Turn();
  EXPECT_EQ(raised, "don't show 0 ");
}

// Two events are waiting when the handler of the first one throws.
TEST_F(Clicks, WaitForTheNextTurnWhenAHandlerLeaves) {
  ShowTable();
  Events.Cds_Click = [](Integer) { throw HandAbandoned{}; };
  Click(game.FindMember("Cds", 7));
  Click(game.FindMember("LblBids", 2));
  EXPECT_THROW(game.Turn(), HandAbandoned);
  EXPECT_EQ(raised, "");
  game.Turn();
  EXPECT_EQ(raised, "bid 2 ");
  Click(game.FindMember("LblBids", 2));
  Hide(Table.FramBids);
  game.Turn();
  EXPECT_EQ(raised, "bid 2 ") << "the panel has gone since";
}

}  // namespace
}  // namespace Parlino
