// Looking through a seat's hand. A hand is found by walking the card numbers upwards, so that the
// first card met of a suit is the lowest.
#pragma once

#include "engine/GameState.h"

namespace Parlino {

// The seat's lowest card of the suit whose value is above `value`, or 0 when there is none: the
// cheapest card that beats a card of the suit with that value.
inline Integer LowestCardAbove(Integer suit, Integer value, Integer seat) {
  for (Integer above = static_cast<Integer>(value + 1); above <= Ace; ++above) {
    const Integer card = CardNumber(above, suit);
    if (Pack[card].Owner == seat) return card;
  }
  return 0;
}

// How many cards of the seat's hand satisfy `condition`.
template <class Condition>
int CountCards(Integer seat, Condition condition) {
  int count = 0;
  for (const Card& card : Pack)
    if (card.Owner == seat && condition(card)) ++count;
  return count;
}

inline Integer CountOfSuit(Integer seat, Integer suit) {
  Integer count = 0;
  const Integer first = FirstCardOf(suit);
  for (int card = first; card < first + CardsInSuit; ++card)
    if (Pack[card].Owner == seat) ++count;
  return count;
}

inline bool HoldsCard(Integer seat, Integer value, Integer suit) {
  return Pack[CardNumber(value, suit)].Owner == seat;
}

}  // namespace Parlino
