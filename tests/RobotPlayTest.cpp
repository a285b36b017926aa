// Golden positions: what a robot plays, and why. A complaint about a robot becomes one more line.
#include <gtest/gtest.h>

#include "engine/TrickPlay.h"
#include "headless/CardText.h"
#include "robots/Choices.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

struct Position {
  char trumps;
  const char* trick;  // as played so far; empty when the robot leads
  const char* hand;
  const char* gone;  // cards played in earlier tricks
  const char* expected;
  const char* why;
};

const Position positions[] = {
    // Leading.
    {'S', "", "AC AH 2D 3D", "", "AC", "aces are cashed in the order of the suits"},
    {'D', "", "AD KC QC 2C", "", "AD", "the ace of trumps is cashed when it is the only one"},
    {'C', "", "AC AS 2C", "", "AS", "a plain ace goes before the ace of trumps"},
    {'S', "", "KC 2H 3H 4H", "AC", "KC", "a bare king is led once its ace is gone"},
    {'S', "", "KD KC 2H 3H", "AD AC", "KD", "of two promoted kings the first suit's"},
    {'S', "", "QH 2C 3C", "AH", "2C", "a queen is not led while the king is out"},
    {'H', "", "KS KH 2D", "AH", "KH", "trumps are promoted like any other suit"},
    {'D', "", "JS 2C 3C", "AS KS QS", "JS", "a jack is led when all above it are gone"},
    {'D', "", "QS KC 2H", "AS KS AC", "KC", "a promoted king goes before a promoted queen"},
    {'H', "", "2D 4C 5C 6C 7C 3S 4S 5S 6S", "", "4C", "four clubs before four spades"},
    {'D', "", "3H 4H 2S 5S", "", "3H", "hearts before spades in a tie"},
    {'S', "", "3S 4S 5S 2D", "", "3S", "the longest suit may be trumps"},
    // Second hand.
    {'H', "AD", "KD 3D 5D", "", "3D", "low under an ace, even with the king"},
    {'H', "9C", "4C TC KC", "", "TC", "the cheapest card that beats the lead"},
    {'H', "QC", "3C 7C JC", "", "3C", "low when the lead cannot be beaten"},
    {'H', "9C", "5H TH 2D", "", "5H", "a void is ruffed with the lowest trump"},
    {'H', "9C", "2D 3D KS", "", "2D", "without a trump the longest suit gives its lowest"},
    {'H', "9H", "2D 3D KS", "", "2D", "void in trumps when trumps are led"},
    {'H', "9H", "TH 3H 2D", "", "TH", "a lead of trumps is beaten like any other"},
    // Third hand.
    {'H', "AD 3D", "KD 4D", "", "4D", "low under the partner's ace"},
    {'H', "AD 2H", "KD 4D", "", "4D", "low under the partner's ace also when it is ruffed"},
    {'H', "TS JS", "QS KS 2S", "", "QS", "the cheapest card above the second"},
    {'H', "TS JS", "2S 5S", "", "2S", "low when the second cannot be beaten"},
    {'H', "TS 4S", "KS 2S", "", "2S", "low behind a partner who is winning"},
    {'H', "TS 4C", "KS 2S", "", "2S", "a discard does not beat the partner"},
    {'H', "TS 2H", "AS 3S", "", "3S", "nothing of the led suit beats a ruff"},
    {'H', "TS 7H", "5H 9H 2D", "", "9H", "over-ruffs with the cheapest trump"},
    {'H', "TS 7H", "5H 2D 3D", "", "2D", "cannot over-ruff: discards"},
    {'H', "TS AH", "KH 2D 3D", "", "2D", "an ace of trumps is not over-ruffed"},
    {'H', "TS JS", "3H 4C 5C", "", "4C", "does not ruff a second hand that won in the suit"},
    {'H', "TS JS", "3H 4H 5C", "", "3H", "the discard is a trump when trumps are longest"},
    {'S', "9S JS", "KS QS 2S", "", "QS", "trumps led are fought for with trumps"},
    {'S', "9S 2D", "KS QS 3S", "", "3S", "low behind the partner's trump lead"},
    // Fourth hand.
    {'S', "AS 3S 4S", "KS 2S", "", "2S", "low under the ace of trumps"},
    {'H', "AC 3C 4C", "KC 2C", "", "2C", "low under an ace that partner could not ruff"},
    {'H', "9C 3H 4C", "AC 2C", "", "2C", "low behind partner's ruff"},
    {'H', "9C 3H 4C", "2H 4D 5D", "", "4D", "void behind partner's ruff: discards"},
    {'H', "5S QS 9S", "AS 2S", "", "2S", "low behind partner's highest card"},
    {'H', "KS TS 4S", "AS 2S", "", "2S", "judges partner above the third hand to be winning"},
    {'S', "8H 6H JH", "QH AH", "", "AH", "the ace beats a third hand that followed"},
    {'S', "8H 6H JH", "QH KH 2H", "", "QH", "the cheapest above the third without the ace"},
    {'S', "QH 6H JH", "KH AH 2H", "", "AH", "the ace also when the lead is highest"},
    {'S', "QH 6H JH", "KH 2H", "", "KH", "the cheapest above the lead"},
    {'H', "TD 3D 4C", "JD KD", "", "JD", "a discard leaves the lead to be beaten"},
    {'H', "TD 3D TC", "JD 2D", "", "2D", "equal values count as beaten by nobody"},
    {'H', "TD 3D AC", "JD 2D", "", "2D", "an ace of any suit in third place: low"},
    {'H', "TD 3D 2H", "JD KD", "", "JD", "low under a third hand's ruff"},
    {'H', "TD 3D JD", "2H 5H 2C", "", "2H", "ruffs when the third hand followed"},
    {'H', "TD QD JD", "2H 5H 2C", "", "2H", "discards behind partner: the longest suit is trumps"},
    {'H', "TD 3D 8H", "2H 9H 2C", "", "9H", "over-ruffs the third hand"},
    {'H', "TD 3D 8H", "2H 7H 2C 3C 4C", "", "2C", "cannot over-ruff: discards"},
    {'H', "TH 3H JH", "2C 3C 5D", "", "2C", "void in trumps led: discards"},
    {'H', "TD 2H 3H", "4H 5D", "", "5D", "has to follow suit though it could over-ruff"},
    {'H', "TD AS 4C", "2H 4D", "", "4D", "follows suit low behind partner's ace of another suit"},
};

// Every card that is neither in the hand, nor gone, nor in the trick lies in other hands.
void SetUpPosition(const Position& position, Integer seat, Integer otherSeat) {
  SetItUp();
  for (Card& card : Pack) card.Owner = otherSeat;
  GiveHand(seat, position.hand);
  GiveHand(NoSeat, position.gone);
  GiveHand(NoSeat, position.trick);
  TrumpSuit = SuitOf(position.trumps);
  SetTrick(West, position.trick);
}

int CardsIn(std::string_view text) {
  return static_cast<int>((text.size() + 1) / 3);
}

TEST(RobotPlay, PlaysTheGoldenPositions) {
  const HeadlessGame game;
  for (const Position& position : positions) {
    SetUpPosition(position, North, Player);
    const Integer card = ChooseRobotsCard(CardsIn(position.trick) + 1, North);
    EXPECT_EQ(CardText(card), position.expected)
        << position.why << ": trumps " << position.trumps << ", trick " << position.trick
        << ", hand " << position.hand;
  }
}

TEST(RobotPlay, DoesNotDependOnTheSeatOrOnWhoHoldsTheHiddenCards) {
  const HeadlessGame game;
  for (const Position& position : positions) {
    for (Integer seat = Player; seat <= East; ++seat) {
      for (int places = 1; places <= 3; ++places) {
        SetUpPosition(position, seat, SeatAfter(seat, places));
        const Integer card = ChooseRobotsCard(CardsIn(position.trick) + 1, seat);
        ASSERT_EQ(CardText(card), position.expected) << position.why << ", seat " << seat;
      }
    }
  }
}

TEST(RobotPlay, RecordsTheCardAndItsSuitAndPutsItOnTheTable) {
  const HeadlessGame game;
  HeadlessGame::Load();
  SetUpPosition({'H', "9C", "5H TH 2D", "", "5H", ""}, North, Player);
  PlaySecondCard(North);
  EXPECT_EQ(TrickCards[2], CardOf("5H"));
  EXPECT_EQ(TrickSuits[2], Hearts);
  EXPECT_EQ(Pack[CardOf("5H")].Owner, NoSeat);
  EXPECT_EQ(Table.Cds[CardOf("5H")].Place, (TablePoint{5040, 2880}));
  EXPECT_EQ(Table.Cds[CardOf("5H")].Picture, CardOf("5H"));
  EXPECT_EQ(Table.LstCardsPlayed.Line(0), "North played Five of  Hearts");
  EXPECT_FALSE(Table.LblInfo.Visible);
  EXPECT_EQ(PauseMs, DefaultPauseMs);
}

}  // namespace
}  // namespace Parlino
