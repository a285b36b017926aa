// What only shows over many deals.
#include <gtest/gtest.h>
#include <set>

#include "engine/Deal.h"
#include "table/CardDisplay.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

// The Ace of Spades has half the weight of the others, so that the dealer, served last, gets it
// most often; nothing else favours a seat.
TEST(Deal, DealsEveryCardOnceAndTheAceOfSpadesLate) {
  const HeadlessGame game(7);
  HeadlessGame::Load();
  constexpr int deals = 4000;
  Indexed<int, 1, CardsInPack> withDealer;
  for (int deal = 0; deal < deals; ++deal) {
    PlacePackDeal();
    Dealer = Player;
    DealCards();
    for (Integer seat = Player; seat <= East; ++seat) ASSERT_EQ(HandOf(seat).Count(), 13);
    for (const Integer card : HandOf(Player)) ++withDealer[card];
  }
  EXPECT_GT(withDealer[52], deals * 29 / 100);
  for (int card = 1; card < CardsInPack; ++card)
    EXPECT_NEAR(withDealer[card], deals * 0.25, deals * 0.04) << "card " << card;
}

// It stands still, at midnight too, is set back at every draw, or jumps over midnight.
TEST(Deal, NeedsNoClockThatGoesOn) {
  for (const auto clock : {+[](int) { return 43'200.0; }, +[](int) { return 0.0; },
                           +[](int look) { return 43'200.0 - 3600 * (look % 12); },
                           +[](int look) { return look % 2 == 0 ? 0.001 : 86'399.999; }}) {
    HeadlessGame game(31);
    HeadlessGame::Load();
    int looks = 0;
    game.platform.clock = [&] { return clock(++looks); };
    std::set<std::string> deals;
    for (int deal = 1; deal <= 8; ++deal) {
      PlacePackDeal();
      DealCards();
      std::string owners;
      for (const Card& card : Pack) owners += std::to_string(card.Owner);
      deals.insert(owners);
    }
    EXPECT_EQ(deals.size(), 8U);
  }
}

}  // namespace
}  // namespace Parlino
