// Where the keys lead, in the hand and in the bidding panel.
#include <gtest/gtest.h>

#include "engine/state/Questions.h"
#include "headless/CardText.h"
#include "table/BidWalk.h"
#include "table/CardDisplay.h"
#include "table/HandWalk.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

struct Walk {
  const char* why;
  const char* trick;  // what West and those after it have played
  const char* start;
  const char* steps;  // < > l r u d: Home, End, Left, Right, Up, Down; D C H S: the suit
  const char* end;
};

constexpr const char* Hand = "4D TD 2C 7C KC 5H QH";

const Walk Walks[] = {
    {"one to the right", "", "4D", "r", "TD"},
    {"one to the left", "", "2C", "l", "TD"},
    {"the right end is the end", "", "5H", "rrr", "QH"},
    {"the left end is the end", "", "TD", "lll", "4D"},
    {"to the ends", "", "2C", ">", "QH"},
    {"and back", "", "2C", "><", "4D"},
    {"through a suit and round", "", "2C", "CC", "KC"},
    {"round to its first card", "", "KC", "C", "2C"},
    {"into a suit to the left", "", "QH", "D", "4D"},
    {"a suit that is not there", "", "7C", "S", "7C"},
    {"one's lead: every card may be played", "", "TD", "uu", "7C"},
    {"round the end", "", "QH", "u", "4D"},
    {"the led suit, to the right", "9H", "TD", "u", "5H"},
    {"the led suit, round the end", "9H", "QH", "u", "5H"},
    {"back to the led suit", "9D", "QH", "d", "TD"},
    {"back, round the end", "9H", "4D", "d", "QH"},
    {"without the led suit every card may be played", "9S", "2C", "u", "7C"},
};

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
  for (const Walk& way : Walks) {
    Leader = Player;
    if (*way.trick != '\0') SetTrick(West, way.trick);
    HandWalk walk;
    walk.Follow();
    walk.GoTo(static_cast<Integer>(CardOf(way.start)));
    for (const char step : std::string_view(way.steps)) Step(walk, step);
    EXPECT_EQ(CardText(walk.Card()), way.end) << way.why;
  }
}

TEST_F(HandWalkTest, KeepsItsPlaceInTheRowWhenTheCardThereIsPlayed) {
  HandWalk walk;
  for (const auto& [played, next] : {std::pair("2C", "7C"), {"QH", "5H"}, {"4D", "TD"}}) {
    const auto card = static_cast<Integer>(CardOf(played));
    walk.GoTo(card);
    MoveToMiddle(card, Player);  // it is still the Player's while it goes there
    walk.Follow();
    EXPECT_EQ(CardText(walk.Card()), next);
    Pack[card].Owner = NoSeat;
    ShowPlayerHand();
    walk.Follow();
    EXPECT_EQ(CardText(walk.Card()), next);
  }
}

TEST_F(HandWalkTest, WaitsForTheDealAndFindsNoCardToPlayOutOfTurn) {
  HandWalk walk;
  walk.Follow();
  EXPECT_EQ(CardText(walk.Card()), "4D");
  EXPECT_FALSE(walk.GoToNext(CardsHumanMayPlay()));
  walk.GoToOneBefore(CardsHumanMayPlay());
  EXPECT_EQ(CardText(walk.Card()), "4D");
  walk.GoToLast();
  PlacePackDeal();
  TrumpSuit = -1;
  GiveHand(Player, "9H");
  ShowPlayerHand();
  walk.Follow();
  EXPECT_EQ(walk.Card(), 0);
  TrumpSuit = Spades;
  walk.Follow();
  EXPECT_EQ(CardText(walk.Card()), "9H");
}

TEST(BidWalk, StepsAlongTheNumbersAndBetweenTheRows) {
  constexpr struct {
    int start;
    char step;
    int end;
  } steps[] = {{1, 'l', 1},   {1, 'r', 2},   {6, 'r', 7},   {13, 'r', 13}, {1, 'u', 1},
               {8, 'u', 2},   {13, 'u', 9},  {2, 'd', 8},   {6, 'd', 12},  {7, 'd', 13},
               {12, 'd', 13}, {13, 'd', 13}, {12, 'r', 13}, {7, 'l', 6}};
  for (const auto& [start, step, end] : steps) {
    BidWalk walk;
    walk.GoTo(start);
    if (step == 'l') walk.GoLeft();
    if (step == 'r') walk.GoRight();
    if (step == 'u') walk.GoUp();
    if (step == 'd') walk.GoDown();
    EXPECT_EQ(walk.Number(), end) << start << step;
  }
}

TEST(BidWalk, TakesDigitsAndTwoOfThemWithinAMoment) {
  const std::uint32_t soon = 900;
  const std::uint32_t late = 1100;
  const struct {
    std::vector<std::pair<int, std::uint32_t>> typed;  // the digit, and how long after the last one
    int number;
  } cases[] = {
      {{{4, 0}}, 4},
      {{{1, 0}}, 1},
      {{{1, 0}, {0, soon}}, 10},
      {{{1, 0}, {1, soon}}, 11},
      {{{1, 0}, {2, soon}}, 12},
      {{{1, 0}, {3, soon}}, 13},
      {{{1, 0}, {3, late}}, 3},
      {{{1, 0}, {4, soon}}, 4},
      {{{2, 0}, {3, soon}}, 3},
      {{{0, 0}}, 1},
      {{{5, 0}, {0, soon}}, 5},
      {{{1, 0}, {2, soon}, {3, soon}}, 3},
      {{{1, 0}, {1, soon}, {1, soon}, {2, soon}}, 12},
  };
  for (const auto& [typed, number] : cases) {
    BidWalk walk;
    std::uint32_t now = 0xFFFFFF00;  // the clock wraps in between
    for (const auto& [digit, after] : typed) walk.Type(digit, now += after);
    EXPECT_EQ(walk.Number(), number) << testing::PrintToString(typed);
  }
}

}  // namespace
}  // namespace Parlino
