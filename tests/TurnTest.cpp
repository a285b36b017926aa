// The human's turn under clicks that no ordinary player makes, and what is asked without a game.
#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

#include "engine/TrickPlay.h"
#include "engine/state/LedSuitQuery.h"
#include "engine/state/Questions.h"
#include "robots/Bidding.h"
#include "robots/Lead.h"
#include "table/CardDisplay.h"
#include "table/TableEvents.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

// A table in the middle of a trick: West has led the Nine of Clubs, it is the human's turn to play
// fourth, and the hand is 4C TC 2H AS.
class Turn : public testing::Test {
 protected:
  Turn() {
    HeadlessGame::Load();
    GiveHand(Player, "4C TC 2H AS");
    SetTrick(West, "9C 3C 2C");
    TrumpSuit = Hearts;
    GameInProgress = PlayerTurn = True;
    for (const Integer card : HandOf(Player)) Show(Table.Cds[card]);
  }

  void ClickInEveryPause(const std::vector<const char*>& cards) {
    game_.platform.script = [cards](std::uint32_t) {
      for (const char* card : cards) ClickCard(CardOf(card));
    };
  }

  HeadlessGame game_;
};

TEST_F(Turn, TakesOneCardHoweverOftenOneClicks) {
  ClickInEveryPause({"4C", "TC", "2H"});
  ClickCard(CardOf("4C"));
  EXPECT_EQ(HandOf(Player).Count(), 3);
  ClickCard(CardOf("TC"));
  EXPECT_EQ(HandOf(Player).Count(), 3);
}

TEST_F(Turn, DoesNotPileUpNotesUnderWildClicking) {
  ClickInEveryPause({"AS", "AS", "AS"});
  ClickCard(CardOf("AS"));
  EXPECT_LE(game_.platform.deepest, 2);
  ClickCard(CardOf("AS"));
  EXPECT_EQ(game_.platform.ticks, 1000U) << "the next wrong click gets a note of its own";
}

TEST_F(Turn, TakesACardClickedUnderTheNote) {
  ClickInEveryPause({"4C"});
  ClickCard(CardOf("AS"));
  EXPECT_EQ(TrickCards[4], CardOf("4C"));
}

TEST_F(Turn, IgnoresClicksWhileNoGameIsInProgress) {
  GameInProgress = False;
  ClickCard(CardOf("4C"));
  EXPECT_EQ(HandOf(Player).Count(), 4);
}

TEST_F(Turn, AskingWhatMayBePlayedChangesNothing) {
  for (const char* card : {"4C", "TC"}) Pack[CardOf(card)].Owner = West;
  PauseMs = 500;
  EXPECT_EQ(CardsHumanMayPlay().Count(), 2);
  EXPECT_EQ(PauseMs, 500);
  ClickCard(CardOf("AS"));
  EXPECT_EQ(game_.platform.ticks, 150U) << "only the click brings back the ordinary pause";
}

TEST_F(Turn, AHintHoldsUntilItsTurnOrItsNameIsAnother) {
  const auto ace = static_cast<Integer>(CardOf("AS"));
  EXPECT_FALSE(HintHolds(ace)) << "there is none";
  HoverCard(ace);
  EXPECT_TRUE(HintHolds(ace));
  PlayerName = "Ann";
  EXPECT_FALSE(HintHolds(ace));
  HoverCard(ace);
  PlayerTurn = False;
  EXPECT_FALSE(HintHolds(ace));
  HoverCard(ace);
  EXPECT_TRUE(HintHolds(ace));
  Pack[ace].Owner = NoSeat;
  EXPECT_FALSE(HintHolds(ace)) << "it is played";
}

TEST_F(Turn, NobodyHoldsAndNobodyHasPlayedWhatIsNoCard) {
  struct {
    int value;
    int suit;
  } const noCards[] = {{15, Diamonds}, {1, Clubs}, {0, Spades}, {Ace, 9}, {Ace, 0}, {Ace, -1}};
  for (const auto& [value, suit] : noCards)
    EXPECT_FALSE(CardGoneQuery(ToInteger(value), ToInteger(suit))) << value << " of " << suit;
  for (const int led : {0, -1, 9}) {
    LedSuit = ToInteger(led);
    EXPECT_FALSE(HasStartSuitQuery(Player)) << led;
  }
  TrumpSuit = -1;
  EXPECT_EQ(GetBid(Player), 2) << "an Ace and a singleton";
  GiveHand(West, "2D");
  EXPECT_EQ(ChooseFirstCard(West), CardOf("2D"));
  EXPECT_FALSE(Recorded(game_.platform, "Unexpected error"));
}

// Every wait ends at half of what is asked for, as one does in which something happens.
class UnevenPlatform : public HeadlessPlatform {
 public:
  int waits = 0;
  void ProcessEvents(std::uint32_t atMostMs) override {
    if (++waits > 1000) throw ScriptHasNothingToSay{};  // it would never end
    ticks += (atMostMs + 1) / 2;
  }
};

TEST(Pauses, LastAsLongAsTheySayAlsoWhenTheTicksWrap) {
  UnevenPlatform platform;
  UsePlatform(platform);
  for (const std::uint32_t start : {0U, 0x7FFFFFF0U, 0x80000000U, 0xFFFFFFF0U}) {
    for (const int length : {-32768, -1, 0, 1, 25, 2500, 32767}) {
      platform.ticks = start;
      platform.waits = 0;
      PauseMs = ToInteger(length);
      WaitMs();
      EXPECT_EQ(platform.ticks - start, static_cast<std::uint32_t>(std::max(length, 0)));
      EXPECT_EQ(platform.waits > 0, length > 0);
      EXPECT_EQ(PauseStartTicks, static_cast<std::int32_t>(start));
    }
  }
}

}  // namespace
}  // namespace Parlino
