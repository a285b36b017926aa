#include <algorithm>
#include <gtest/gtest.h>

#include "engine/RoundDriver.h"
#include "engine/TrickFlow.h"
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
class TrickPlay : public testing::Test {
 protected:
  TrickPlay() {
    HeadlessGame::Load();
    GiveHand(Player, "4C TC 2H AS");
    ShowPlayerHand();
    SetTrick(West, "9C 3C 2C");
    TrumpSuit = Hearts;
    GameInProgress = True;
    PlayerTurn = True;
    for (const char* card : {"4C", "TC", "2H", "AS"}) Show(Table.Cds[CardOf(card)]);
  }

  HeadlessGame game_;
};

TEST_F(TrickPlay, RefusesACardOfAnotherSuitAndSaysWhy) {
  std::string note;
  game_.platform.script = [&](std::uint32_t) { note = Table.LblInfo.Caption; };
  ClickCard(CardOf("AS"));
  EXPECT_EQ(note, "Player sorry, you must follow suit. Please try again");
  EXPECT_EQ(game_.platform.ticks, 500U);
  EXPECT_FALSE(Table.LblInfo.Visible);
  EXPECT_EQ(Pack[CardOf("AS")].Owner, Player);
  EXPECT_NE(PlayerTurn, False);
  ClickCard(CardOf("TC"));
  EXPECT_EQ(Pack[CardOf("TC")].Owner, NoSeat);
  EXPECT_EQ(game_.platform.ticks, 1000U)
      << "the pause after a refused card keeps the note's length";
}

TEST_F(TrickPlay, TakesAnyCardWithoutTheLedSuit) {
  Pack[CardOf("4C")].Owner = West;
  Pack[CardOf("TC")].Owner = West;
  ClickCard(CardOf("AS"));
  EXPECT_EQ(TrickCards[4], CardOf("AS"));
  EXPECT_EQ(TrickSuits[4], Spades);
  EXPECT_EQ(LedSuit, Clubs);
  EXPECT_EQ(Table.Cds[CardOf("AS")].Place, (TablePoint{5040, 4920}));
  EXPECT_EQ(Table.LstCardsPlayed.Line(0), "Player played Ace  of  Spades");
}

TEST_F(TrickPlay, TakesOneCardATurnHoweverOftenOneClicks) {
  game_.platform.script = [](std::uint32_t) {
    for (const char* card : {"4C", "TC", "2H"}) ClickCard(CardOf(card));
  };
  ClickCard(CardOf("4C"));
  EXPECT_NE(PlayerHasPlayed, False);
  EXPECT_EQ(HandOf(Player).Count(), 3);
  EXPECT_EQ(Table.LstCardsPlayed.Count(), 1);
  ClickCard(CardOf("TC"));
  EXPECT_EQ(HandOf(Player).Count(), 3);
}

TEST_F(TrickPlay, DoesNotPileUpNotesUnderWildClicking) {
  int clicks = 0;
  game_.platform.script = [&](std::uint32_t) {
    if (++clicks < 1000) ClickCard(CardOf("AS"));
  };
  ClickCard(CardOf("AS"));
  EXPECT_LE(game_.platform.deepest, 2);
  game_.platform.script = [](std::uint32_t) {};
  ClickCard(CardOf("AS"));
  EXPECT_EQ(game_.platform.ticks, 1000U) << "the next wrong click gets a note of its own";
}

TEST_F(TrickPlay, ACardClickedUnderTheNoteIsPlayed) {
  game_.platform.script = [](std::uint32_t) { ClickCard(CardOf("4C")); };
  ClickCard(CardOf("AS"));
  EXPECT_EQ(TrickCards[4], CardOf("4C"));
  EXPECT_NE(PlayerHasPlayed, False);
}

TEST_F(TrickPlay, IgnoresClicksThatAreNotAPlay) {
  struct {
    const char* why;
    void (*arrange)();
  } const cases[] = {
      {"not the human's turn", [] { PlayerTurn = False; }},
      {"no game in progress", [] { GameInProgress = False; }},
      {"a robot's card", [] { Pack[CardOf("4C")].Owner = East; }},
      {"a card already played", [] { Pack[CardOf("4C")].Owner = NoSeat; }},
  };
  for (const auto& example : cases) {
    PlayerTurn = GameInProgress = True;
    example.arrange();
    const Integer owner = Pack[CardOf("4C")].Owner;
    ClickCard(CardOf("4C"));
    EXPECT_EQ(Pack[CardOf("4C")].Owner, owner) << example.why;
    EXPECT_EQ(Table.LstCardsPlayed.Count(), 0) << example.why;
  }
}

TEST_F(TrickPlay, HintsOnlyOnTheHumansCards) {
  HoverCard(CardOf("AS"));
  EXPECT_EQ(Table.Cds[CardOf("AS")].MousePointer, PicturePointerPlay);
  EXPECT_EQ(Table.Cds[CardOf("AS")].ToolTipText, "Player left click the card you wish to play.");
  PlayerTurn = False;
  HoverCard(CardOf("AS"));
  EXPECT_EQ(Table.Cds[CardOf("AS")].MousePointer, PicturePointerWait);
  EXPECT_EQ(Table.Cds[CardOf("AS")].ToolTipText,
            "Player sorry, it is not your turn at the moment.");
  Show(Table.Cds[CardOf("KD")]);
  HoverCard(CardOf("KD"));
  EXPECT_EQ(Table.Cds[CardOf("KD")].MousePointer, 0);
}

TEST_F(TrickPlay, PlaysTheHumansCardAtThePositionThatFollowsFromTheLeader) {
  const int expected[SeatsAtTable] = {1, 4, 3, 2};
  for (Integer leader = Player; leader <= East; ++leader) {
    Leader = leader;
    EXPECT_EQ(HumansPosition(), expected[leader]);
  }
}

TEST_F(TrickPlay, KnowsWhichCardsAreGone) {
  GiveHand(West, "AD");
  EXPECT_FALSE(CardGoneQuery(Ace, Diamonds));
  PlayCard(West, static_cast<Integer>(CardOf("AD")));
  EXPECT_TRUE(CardGoneQuery(Ace, Diamonds));
  PauseMs = 25;
  LedSuit = Clubs;
  EXPECT_TRUE(HasStartSuitQuery(Player));
  EXPECT_EQ(PauseMs, 25);
  LedSuit = Diamonds;
  EXPECT_FALSE(HasStartSuitQuery(Player));
  EXPECT_EQ(PauseMs, DefaultPauseMs);
}

TEST_F(TrickPlay, NobodyHoldsAndNobodyHasPlayedWhatIsNoCard) {
  struct {
    int value;
    int suit;
  } const noCards[] = {{15, Diamonds}, {1, Clubs}, {0, Spades}, {Ace, 9}, {Ace, 0}, {Ace, -1}};
  for (const auto& [value, suit] : noCards)
    EXPECT_FALSE(CardGoneQuery(ToInteger(value), ToInteger(suit))) << value << " of " << suit;
  for (const int led : {0, -1, 9}) {
    PauseMs = 25;
    LedSuit = ToInteger(led);
    EXPECT_FALSE(HasStartSuitQuery(Player)) << led;
    EXPECT_EQ(PauseMs, DefaultPauseMs) << led;
  }
  TrumpSuit = -1;
  EXPECT_EQ(GetBid(Player), 2) << "an Ace and a singleton";
  GiveHand(West, "2D");
  EXPECT_EQ(ChooseFirstCard(West), CardOf("2D"));
  EXPECT_FALSE(Recorded(game_.platform, "Unexpected error"));
}

TEST_F(TrickPlay, AskingWhatMayBePlayedChangesNothing) {
  Pack[CardOf("4C")].Owner = West;
  Pack[CardOf("TC")].Owner = West;
  PauseMs = 500;
  EXPECT_EQ(CardsHumanMayPlay().Count(), 2);
  EXPECT_EQ(PauseMs, 500);
  ClickCard(CardOf("AS"));
  EXPECT_EQ(game_.platform.ticks, 150U) << "only the click brings back the ordinary pause";
}

struct WinnerCase {
  char trumps;
  const char* trick;
  Integer winner;  // West leads
};

TEST(TrickFlow, FindsTheWinner) {
  const HeadlessGame game;
  SetItUp();
  for (const WinnerCase& example :
       {WinnerCase{'H', "9C JC AD 2C", North}, WinnerCase{'H', "AC KC 2H QC", East},
        WinnerCase{'H', "AC 3H 2H QC", North}, WinnerCase{'S', "9S TS AD QS", Player},
        WinnerCase{'S', "2D AC AH 3D", Player}, WinnerCase{'C', "2D AH AS KH", West},
        WinnerCase{'C', "AD AC KC QC", North}}) {
    TrumpSuit = SuitOf(example.trumps);
    SetTrick(West, example.trick);
    GetTrickWinner();
    EXPECT_EQ(TrickWinner, example.winner) << example.trick << " trumps " << example.trumps;
  }
}

TEST(TrickFlow, ScoresAHand) {
  struct {
    int tricks;
    int bid;
    int score;
  } const cases[] = {{9, 7, 72}, {7, 7, 70}, {6, 7, -70}, {13, 14, -140}, {13, 2, 31}, {0, 2, -20}};
  for (const auto& example : cases)
    EXPECT_EQ(HandScore(example.tricks, example.bid), example.score);
}

TEST(TrickFlow, MovesAFinishedTrickToTheWinnersPile) {
  const HeadlessGame game;
  HeadlessGame::Load();
  DefaultPauseMs = 150;
  SetTrick(West, "9C JC AD 2C");
  TricksWon[North] = 3;
  JustMoveCardsOut(North);
  EXPECT_TRUE(Table.ImgBackNorth[3].Visible);
  EXPECT_FALSE(Table.ImgBackNorth[2].Visible);
  EXPECT_EQ(Table.Cds[CardOf("2C")].Place, (TablePoint{5520, 600}));
  for (const char* card : {"9C", "JC", "AD", "2C"}) {
    EXPECT_FALSE(Table.Cds[CardOf(card)].Visible);
    EXPECT_EQ(Pack[CardOf(card)].Owner, NoSeat);
  }
  EXPECT_EQ(game.platform.ticks, 1000U);
  EXPECT_EQ(PauseMs, DefaultPauseMs);
}

TEST(Pauses, LastAsLongAsTheySayAlsoWhenTheTicksWrap) {
  HeadlessGame game;
  for (const std::uint32_t start : {0U, 0x7FFFFFF0U, 0xFFFFFFF0U}) {
    for (const int length : {-32768, -1, 0, 25, 2500, 32767}) {
      int chances = 0;
      game.platform.script = [&](std::uint32_t) { ++chances; };
      game.platform.ticks = start;
      PauseMs = ToInteger(length);
      WaitMs();
      EXPECT_EQ(game.platform.ticks - start, static_cast<std::uint32_t>(std::max(length, 0)));
      EXPECT_EQ(chances > 0, length > 0);
    }
  }
}

}  // namespace
}  // namespace Parlino
