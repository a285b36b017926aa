// Where the keys lead, in the hand and in the bidding panel.
#include <gtest/gtest.h>

#include "engine/state/Questions.h"
#include "headless/CardText.h"
#include "table/BidWalk.h"
#include "table/CardDisplay.h"
#include "table/HandWalk.h"
#include "tests/support/HeadlessGame.h"
#include "tests/support/Rows.h"

namespace Parlino {
namespace {

constexpr const char* Hand = "4D TD 2C 7C KC 5H QH";

class HandWalkTest : public testing::Test {
 protected:
  HandWalkTest() {
    game.Load();
    GiveHand(Player, Hand);
    TrumpSuit = Hearts;
    ShowPlayerHand();
  }

  HeadlessGame game;
};

void Step(HandWalk& walk, char step) {
  switch (step) {
    case '<':
      return walk.GoToFirst();
    case '>':
      return walk.GoToLast();
    case 'l':
      return walk.GoLeft();
    case 'r':
      return walk.GoRight();
    case 'u':
      EXPECT_TRUE(walk.GoToNext(CardsHumanMayPlay()));
      return;
    case 'd':
      return walk.GoToOneBefore(CardsHumanMayPlay());
    default:
      return walk.GoToNextOfSuit(SuitOf(step));
  }
}

TEST_F(HandWalkTest, ReachesTheCard) {
  PlayerTurn = True;
  for (Row& way : ReadRows("walks.txt", "walk")) {
    Leader = Player;
    if (!way["trick"].empty()) SetTrick(West, way["trick"]);
    HandWalk walk;
    walk.Follow();
    walk.GoTo(static_cast<Integer>(CardOf(way["start"])));
    for (const char step : way["steps"]) Step(walk, step);
    EXPECT_EQ(CardText(walk.Card()), way["end"]) << way["why"];
  }
}

TEST(BidWalk, StepsAlongTheNumbersAndBetweenTheRows) {
  for (Row& row : ReadRows("walks.txt", "step")) {
    BidWalk walk;
    walk.GoTo(std::stoi(row["start"]));
    const std::string& step = row["step"];
    if (step == "l") walk.GoLeft();
    if (step == "r") walk.GoRight();
    if (step == "u") walk.GoUp();
    if (step == "d") walk.GoDown();
    EXPECT_EQ(walk.Number(), std::stoi(row["end"])) << row["start"] << step;
  }
}

TEST(BidWalk, TakesDigitsAndTwoOfThemWithinAMoment) {
  for (Row& row : ReadRows("walks.txt", "type")) {
    BidWalk walk;
    std::istringstream digits(row["digits"]);
    std::uint32_t now = 0xFFFFFF00;  // the clock wraps in between
    for (int digit = 0; digits >> digit;) {
      walk.Type(digit, now);
      std::uint32_t pause = 0;
      if (digits >> pause) now += pause;
    }
    EXPECT_EQ(walk.Number(), std::stoi(row["number"])) << row["digits"];
  }
}

}  // namespace
}  // namespace Parlino
