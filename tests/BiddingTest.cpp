#include <gtest/gtest.h>

#include "robots/Bidding.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

struct BidCase {
  char trumps;
  const char* hand;
  int bid;
  const char* why;
};

const BidCase cases[] = {
    {'S', "2D 3D 4D 5D 2C 3C 4C 5C 2H 3H 4H 5H QS", 1, "nothing but half a trick: the least bid"},
    {'H', "AH KH 2H 3H 4H 5H 7D 2S 3S 4S 5S 2C 3C", 5, "2 top cards, singleton, 4 lower trumps"},
    {'C', "2D 2C 3C 4C 5C 6C 7C 2S 3S 4S 5S 6S 7S", 5, "only the void counts, not the singleton"},
    {'H', "2D 3D 4D 5D 6D 2C 3C 4C 5C 6C 7C 8C 2S", 1, "a void in trumps is worth nothing"},
    {'S', "AD KD 2D 3D 4D AC KC AH KH AS KS 2S 3S", 9, "all top cards and 2 lower trumps"},
    {'S', "2D 3D 4D 2C 3C 4C 2H 3H 4H 2S 3S 4S 5S", 2, "4 lower trumps"},
    {'S', "2D 3D 4D 2C 3C 4C 2H 3H 4H 5H 2S 3S 4S", 1, "half a trick is dropped"},
    {'D', "AD KD QD JD TD 9D 8D 7D 6D 5D 4D 3D 2D", 9, "every trump: 2, a void, and 11 halves"},
    {'D', "2H AC KC QC JC TC 9C 8C 7C 6C 5C 4C 3C", 3,
     "hearts come first: a singleton, not a void"},
};

TEST(Bidding, CountsTheHand) {
  const HeadlessGame game;
  for (const BidCase& bidCase : cases) {
    for (Integer seat = Player; seat <= East; ++seat) {
      SetItUp();
      GiveHand(seat, bidCase.hand);
      TrumpSuit = SuitOf(bidCase.trumps);
      EXPECT_EQ(GetBid(seat), bidCase.bid) << bidCase.why << ": " << bidCase.hand;
      EXPECT_EQ(DiamondsTotal + ClubsTotal + HeartsTotal + SpadesTotal, 13) << bidCase.hand;
    }
  }
}

}  // namespace
}  // namespace Parlino
