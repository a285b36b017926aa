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

CardSet Below(CardSet cards, Integer card) {
  return cards.Between(1, card - 1);
}

CardSet Above(CardSet cards, Integer card) {
  return cards.Between(card + 1, CardsInPack);
}

}  // namespace

void HandWalk::Follow() {
  const CardSet row = TrumpSuit < Diamonds ? CardSet() : PlayersRow();  // no trumps yet: dealing
  if (row.Has(card_)) return;
  card_ = LowestOr(Above(row, card_), HighestOr(row, 0));
}

void HandWalk::GoTo(Integer card) {
  if (PlayersRow().Has(card)) card_ = card;
}

void HandWalk::GoToFirst() {
  card_ = LowestOr(PlayersRow(), card_);
}

void HandWalk::GoToLast() {
  card_ = HighestOr(PlayersRow(), card_);
}

void HandWalk::GoLeft() {
  card_ = HighestOr(Below(PlayersRow(), card_), card_);
}

void HandWalk::GoRight() {
  card_ = LowestOr(Above(PlayersRow(), card_), card_);
}

bool HandWalk::GoToNext(CardSet cards) {
  card_ = LowestOr(Above(cards, card_), LowestOr(cards, card_));
  return !cards.IsEmpty();
}

bool HandWalk::GoToOneBefore(CardSet cards) {
  card_ = HighestOr(Below(cards, card_), HighestOr(cards, card_));
  return !cards.IsEmpty();
}

void HandWalk::GoToNextOfSuit(Integer suit) {
  const Integer first = FirstCardOf(suit);
  GoToNext(PlayersRow().Between(first, first + CardsInSuit - 1));
}

}  // namespace Parlino
