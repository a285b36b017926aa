#include "robots/Bidding.h"

#include <algorithm>
#include <array>

#include "engine/state/ErrorReport.h"

namespace Parlino {
namespace {

// One trick for every Ace and King, trumps included.
int TopCards(Integer seat) {
  int count = 0;
  for (Integer suit = Diamonds; suit <= Spades; ++suit)
    count += HandOf(seat, suit).Between(CardNumber(King, suit), CardNumber(Ace, suit)).Count();
  return count;
}

// Two tricks for a void side suit, one for a singleton. Only the first short suit in this order
// counts, and a short trump suit is worth nothing.
int ShortSuitBonus() {
  struct SideSuit {
    Integer suit;
    Integer total;
  };
  const std::array suits = {SideSuit{Hearts, HeartsTotal}, SideSuit{Diamonds, DiamondsTotal},
                            SideSuit{Spades, SpadesTotal}, SideSuit{Clubs, ClubsTotal}};
  for (const auto& [suit, total] : suits)
    if (suit != TrumpSuit && total <= 1) return 2 - total;
  return 0;
}

}  // namespace

int LowerTrumps(Integer seat) {
  return HandOf(seat, TrumpSuit)
      .Between(CardNumber(2, TrumpSuit), CardNumber(Queen, TrumpSuit))
      .Count();
}

void SuitTotals(Integer seat) {
  ReportErrors("SuitTotals", [seat] {
    DiamondsTotal = HandOf(seat, Diamonds).Count();
    ClubsTotal = HandOf(seat, Clubs).Count();
    HeartsTotal = HandOf(seat, Hearts).Count();
    SpadesTotal = HandOf(seat, Spades).Count();
  });
}

Integer GetBid(Integer seat) {
  return ReportErrors("GetBid", [seat] {
    SuitTotals(seat);
    // Half a trick is dropped: robots that count it as a whole one fail their bids so often that no
    // game ends.
    const int bid = TopCards(seat) + ShortSuitBonus() + LowerTrumps(seat) / 2;
    return ToInteger(std::max(bid, 1));
  });
}

}  // namespace Parlino
