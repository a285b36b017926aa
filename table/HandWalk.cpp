#include "table/HandWalk.h"

#include "table/CardDisplay.h"

namespace Parlino {
namespace {

Integer LowestOr(CardSet cards, Integer otherwise) {
  return cards.IsEmpty() ? otherwise : cards.Lowest();
}

Integer HighestOr(CardSet cards, Integer otherwise) {
  return cards.IsEmpty() ? otherwise : cards.Highest();
}

// A hand cannot be walked through while it is being dealt; trumps are fixed at the end of the deal.
CardSet Row() {
  return TrumpSuit < Diamonds ? CardSet() : PlayersRow();
}

CardSet Below(CardSet cards, Integer card) {
  return cards.Between(1, card - 1);
}

CardSet Above(CardSet cards, Integer card) {
  return cards.Between(card + 1, CardsInPack);
}

}  // namespace

void HandWalk::Follow() {
  const CardSet row = Row();
  if (row.Has(card_)) return;
  card_ = LowestOr(Above(row, card_), row.Highest());
}

void HandWalk::GoTo(Integer card) {
  if (Row().Has(card)) card_ = card;
}

void HandWalk::GoToFirst() {
  card_ = LowestOr(Row(), card_);
}

void HandWalk::GoToLast() {
  card_ = HighestOr(Row(), card_);
}

void HandWalk::GoLeft() {
  card_ = HighestOr(Below(Row(), card_), card_);
}

void HandWalk::GoRight() {
  card_ = LowestOr(Above(Row(), card_), card_);
}

bool HandWalk::GoToNext(CardSet cards) {
  card_ = LowestOr(Above(cards, card_), LowestOr(cards, card_));
  return !cards.IsEmpty();
}

void HandWalk::GoToOneBefore(CardSet cards) {
  card_ = HighestOr(Below(cards, card_), HighestOr(cards, card_));
}

void HandWalk::GoToNextOfSuit(Integer suit) {
  const Integer first = FirstCardOf(suit);
  GoToNext(Row().Between(first, first + CardsInSuit - 1));
}

}  // namespace Parlino
