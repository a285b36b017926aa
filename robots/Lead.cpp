#include "robots/Lead.h"

#include <algorithm>

#include "engine/state/ErrorReport.h"
#include "engine/state/Questions.h"
#include "robots/Bidding.h"
#include "robots/Hands.h"

namespace Parlino {
namespace {

// An Ace of a plain suit, or else the Ace of trumps; 0 if it has none.
Integer AceToCash(Integer seat) {
  for (Integer suit = Diamonds; suit <= Spades; ++suit)
    if (suit != TrumpSuit && HoldsCard(seat, Ace, suit)) return CardNumber(Ace, suit);
  return HoldsCard(seat, Ace, TrumpSuit) ? CardNumber(Ace, TrumpSuit) : Integer{0};
}

bool AllHigherCardsGone(Integer value, Integer suit) {
  for (Integer higher = Ace; higher > value; --higher)
    if (!CardGoneQuery(higher, suit)) return false;
  return true;
}

// The first card of this value that has become the highest left in its suit; 0 if there is none.
Integer PromotedCard(Integer value, Integer seat) {
  for (Integer suit = Diamonds; suit <= Spades; ++suit)
    if (HoldsCard(seat, value, suit) && AllHigherCardsGone(value, suit))
      return CardNumber(value, suit);
  return 0;
}

}  // namespace

Integer ChooseFirstCard(Integer seat) {
  if (const Integer ace = AceToCash(seat)) return ace;
  for (const Integer value : {King, Queen, Jack})
    if (const Integer card = PromotedCard(value, seat)) return card;
  return ChooseDiscard(seat);  // low from the longest suit
}

Integer LowestCardSuit(Integer suit, Integer seat) {
  return ReportErrors("LowestCardSuit", [suit, seat] { return HandOf(seat, suit).Lowest(); });
}

Integer MostSuitCards(Integer seat) {
  return ReportErrors("MostSuitCards", [seat] {
    SuitTotals(seat);
    const Integer most = std::max({DiamondsTotal, ClubsTotal, HeartsTotal, SpadesTotal});
    if (DiamondsTotal == most) return Diamonds;
    if (ClubsTotal == most) return Clubs;
    if (HeartsTotal == most) return Hearts;
    return Spades;
  });
}

Integer ChooseDiscard(Integer seat) {
  return LowestCardSuit(MostSuitCards(seat), seat);
}

}  // namespace Parlino
