#include "robots/SecondAndThirdHand.h"

#include "engine/state/ErrorReport.h"
#include "engine/state/LedSuitQuery.h"
#include "robots/Hands.h"
#include "robots/Lead.h"

namespace Parlino {
namespace {

Integer LedValue() {
  return Pack[TrickCards[1]].Value;
}
Integer SecondValue() {
  return Pack[TrickCards[2]].Value;
}

// Third hand with a card of the led suit: low behind a winning partner and behind a ruff, otherwise
// the cheapest card that beats the second, low where there is none.
Integer FollowSuitThird(Integer seat) {
  if (!PartnerWinningThird() && TrickSuits[2] == LedSuit)
    if (const Integer above = LowestCardAbove(LedSuit, SecondValue(), seat)) return above;
  return LowestCardSuit(LedSuit, seat);
}

// Third hand void in the led suit: over-ruffs a ruff when it can, and otherwise discards, even when
// the second card is winning in the led suit.
Integer DiscardOrOverRuffThird(Integer seat) {
  if (TrickSuits[2] == TrumpSuit)
    if (const Integer overRuff = LowestCardAbove(TrumpSuit, SecondValue(), seat)) return overRuff;
  return ChooseDiscard(seat);
}

}  // namespace

bool BeatStartCardQuery(Integer who) {
  return ReportErrors("BeatStartCardQuery", [who] {
    if (LowestCardAbove(LedSuit, LedValue(), who) != 0) return true;
    return !HasStartSuitQuery(who) && LowestCardSuit(TrumpSuit, who) != 0;
  });
}

bool PartnerWinningThird() {
  return ReportErrors("PartnerWinningThird", [] {
    if (TrickSuits[2] == LedSuit) return LedValue() > SecondValue();
    return TrickSuits[2] != TrumpSuit;  // a third suit beats nothing, a ruff beats the lead
  });
}

Integer ChooseSecondCard(Integer seat) {
  if (HasStartSuitQuery(seat)) {
    if (BeatStartCardQuery(seat)) return LowestCardAbove(LedSuit, LedValue(), seat);
    return LowestCardSuit(LedSuit, seat);
  }
  if (const Integer ruff = LowestCardSuit(TrumpSuit, seat)) return ruff;
  return ChooseDiscard(seat);
}

Integer ChooseThirdCard(Integer seat) {
  return HasStartSuitQuery(seat) ? FollowSuitThird(seat) : DiscardOrOverRuffThird(seat);
}

}  // namespace Parlino
