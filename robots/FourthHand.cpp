#include "robots/FourthHand.h"

#include <algorithm>

#include "engine/state/ErrorReport.h"
#include "engine/state/LedSuitQuery.h"
#include "robots/Hands.h"
#include "robots/Lead.h"

namespace Parlino {
namespace {

Integer ValueAt(int position) {
  return Pack[TrickCards[position]].Value;
}
bool IsRuff(int position) {
  return TrickSuits[position] == TrumpSuit;
}
bool FollowsSuit(int position) {
  return TrickSuits[position] == LedSuit;
}

// Low behind a winning partner or a ruff; otherwise the Ace over a third hand that followed suit,
// or the cheapest card above the higher of the first and the third value, low where there is none.
// The third value counts whatever its suit.
Integer FollowSuitFourth(Integer seat) {
  const bool isRuffed = LedSuit != TrumpSuit && IsRuff(3);
  if (!PartnerWinningFourth() && !isRuffed) {
    if (FollowsSuit(3) && HoldsCard(seat, Ace, LedSuit)) return CardNumber(Ace, LedSuit);
    const Integer higher = std::max(ValueAt(1), ValueAt(3));
    if (ValueAt(1) != ValueAt(3))
      if (const Integer above = LowestCardAbove(LedSuit, higher, seat)) return above;
  }
  return LowestCardSuit(LedSuit, seat);
}

// Ruffs a trick in which the third hand followed suit, over-ruffs the third hand, and otherwise
// discards. When trumps were led it has none, and so always discards.
Integer DiscardOrRuffFourth(Integer seat) {
  if (!PartnerWinningFourth()) {
    if (FollowsSuit(3))
      if (const Integer ruff = LowestCardSuit(TrumpSuit, seat)) return ruff;
    if (IsRuff(3))
      if (const Integer overRuff = LowestCardAbove(TrumpSuit, ValueAt(3), seat)) return overRuff;
  }
  return ChooseDiscard(seat);
}

}  // namespace

// The tests are made in this order and the first that applies decides. Cards of different suits are
// compared by their numbers in the pack. That makes the robots err now and then, in ways that
// players have learnt to expect.
bool PartnerWinningFourth() {
  return ReportErrors("PartnerWinningFourth", [] {
    const Integer first = TrickCards[1];
    const Integer second = TrickCards[2];
    const Integer third = TrickCards[3];
    const bool trumpsLed = LedSuit == TrumpSuit;

    if (ValueAt(1) == Ace && (trumpsLed || !IsRuff(2))) return false;
    if (second == CardNumber(Ace, TrumpSuit)) return true;
    if (!trumpsLed && IsRuff(2) && !IsRuff(3)) return true;
    if (FollowsSuit(2) && FollowsSuit(3) && second > std::max(first, third)) return true;
    if (trumpsLed || IsRuff(3)) return false;
    return second > third || ValueAt(2) == Ace;
  });
}

Integer ChooseFourthCard(Integer seat) {
  return HasStartSuitQuery(seat) ? FollowSuitFourth(seat) : DiscardOrRuffFourth(seat);
}

}  // namespace Parlino
