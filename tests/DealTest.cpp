#include <array>
#include <gtest/gtest.h>

#include "engine/Deal.h"
#include "engine/Generator.h"
#include "engine/RoundDriver.h"
#include "table/CardDisplay.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

// Deals once and returns the seats in the order in which they were served.
std::vector<Integer> DealInOrder(HeadlessGame& game, Integer dealer) {
  std::vector<Integer> order;
  std::array<int, SeatsAtTable> seen{};
  game.platform.script = [&](std::uint32_t) {
    for (Integer seat = Player; seat <= East; ++seat)
      while (seen[static_cast<std::size_t>(seat)] < HandOf(seat).Count()) {
        ++seen[static_cast<std::size_t>(seat)];
        order.push_back(seat);
      }
  };
  PlacePackDeal();
  Dealer = dealer;
  DealCards();
  return order;
}

TEST(Deal, ServesTheSeatsRoundTheTableFromTheSeatAfterTheDealer) {
  HeadlessGame game;
  HeadlessGame::Load();
  for (Integer dealer = Player; dealer <= East; ++dealer) {
    const std::vector<Integer> order = DealInOrder(game, dealer);
    ASSERT_EQ(order.size(), 52U);
    for (std::size_t place = 0; place < order.size(); ++place)
      ASSERT_EQ(order[place], SeatAfter(dealer, static_cast<int>(place) + 1))
          << "dealer " << dealer;
  }
}

struct TrumpCase {
  Integer dealer;
  Integer suit;
  Integer picture;
  const char* message;
};

TEST(Deal, FixesTrumpsByTheDealer) {
  HeadlessGame game;
  HeadlessGame::Load();
  for (const TrumpCase& trumps : {TrumpCase{Player, Hearts, 60, "West will bid first"},
                                  TrumpCase{West, Diamonds, 62, "North will bid first"},
                                  TrumpCase{North, Clubs, 61, "East will bid first"},
                                  TrumpCase{East, Spades, 63, "Player you will bid first"}}) {
    DealInOrder(game, trumps.dealer);
    EXPECT_EQ(TrumpSuit, trumps.suit);
    EXPECT_EQ(Table.imgtrumps.Picture, trumps.picture);
    EXPECT_TRUE(Table.imgtrumps.Visible && Table.LblTrumps.Visible);
    EXPECT_EQ(Table.LblInfo.Caption, trumps.message);
  }
}

// Over many deals: 13 cards to each seat, hands sorted in their places, and the Ace of Spades at
// half the weight of the others, so that the dealer, served last, gets it most often.
TEST(Deal, DealsEveryCardOnceAndTheAceOfSpadesLate) {
  HeadlessGame game(7);
  HeadlessGame::Load();
  constexpr int deals = 4000;
  std::array<int, SeatsAtTable> aceOfSpades{};
  std::array<int, SeatsAtTable> kingOfSpades{};
  for (int deal = 0; deal < deals; ++deal) {
    PlacePackDeal();
    Dealer = Player;
    DealCards();
    for (Integer seat = Player; seat <= East; ++seat) ASSERT_EQ(HandOf(seat).Count(), 13);
    ++aceOfSpades[static_cast<std::size_t>(Pack[52].Owner)];
    ++kingOfSpades[static_cast<std::size_t>(Pack[51].Owner)];
  }
  EXPECT_GT(aceOfSpades[Player], deals * 29 / 100);
  EXPECT_NEAR(kingOfSpades[Player], deals * 0.25, deals * 0.04);
}

TEST(Deal, DrawsTheOneCardThatIsLeft) {
  const HeadlessGame game;
  for (const int left : {1, 26, 51, 52}) {
    SetItUp();
    for (Card& card : Pack) card.Owner = West;
    Pack[left].Owner = NoSeat;
    EXPECT_EQ(GetSingleCard(), left);
    EXPECT_EQ(Pack[left].Owner, NoSeat);
  }
}

TEST(Deal, GivesEachSeatAQuarterOfTheFirstDeals) {
  const HeadlessGame game;
  std::array<int, SeatsAtTable> dealers{};
  for (int games = 0; games < 4000; ++games) {
    GameInProgress = False;
    GetDealer();
    ASSERT_EQ(Leader, SeatAfter(Dealer));
    ++dealers[static_cast<std::size_t>(Dealer)];
  }
  for (const int count : dealers) EXPECT_NEAR(count, 1000, 120);
  GameInProgress = True;
  Dealer = East;
  GetDealer();
  EXPECT_EQ(Dealer, Player);
}

TEST(Generator, GoesOnWithinOneTickOfTheClockAndRepeatsBySeed) {
  const HeadlessGame game;
  DealGenerator.Seed(3);
  MixClockIntoGenerator();
  const float first = NextRandom();
  MixClockIntoGenerator();
  EXPECT_NE(NextRandom(), first);
  DealGenerator.Seed(3);
  MixClockIntoGenerator();
  EXPECT_EQ(NextRandom(), first);
}

struct LayoutCase {
  void (*show)();
  Integer seat;
  TablePoint first;
  TablePoint step;
  Integer picture;
};

TEST(Layout, SortsEveryHandAndClosesItsGaps) {
  const HeadlessGame game;
  HeadlessGame::Load();
  for (const LayoutCase& layout : {LayoutCase{ShowPlayerHand, Player, {2280, 6600}, {400, 0}, 0},
                                   LayoutCase{ShowWestHand, West, {1300, 2700}, {0, 175}, 57},
                                   LayoutCase{ShowNorthHand, North, {3840, 1080}, {175, 0}, 53},
                                   LayoutCase{ShowEastHand, East, {8550, 2700}, {0, 175}, 57}}) {
    SetItUp();
    GiveHand(layout.seat, "AS 2D KH 2C AD");
    layout.show();
    int place = 0;
    for (const char* letters : {"2D", "AD", "2C", "KH", "AS"}) {
      const int card = CardOf(letters);
      EXPECT_EQ(Table.Cds[card].Place, (TablePoint{layout.first.Left + place * layout.step.Left,
                                                   layout.first.Top + place * layout.step.Top}));
      EXPECT_EQ(Table.Cds[card].Picture, layout.picture == 0 ? card : layout.picture);
      ++place;
    }
  }
}

}  // namespace
}  // namespace Parlino
