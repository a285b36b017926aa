#include "table/HandWalk.h"

#include "engine/TrickPlay.h"
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

// The first of the cards after `card`, round the end.
Integer NextOf(CardSet cards, Integer card) {
  return LowestOr(Above(cards, card), LowestOr(cards, card));
}

CardSet Playable() {
  const CardSet row = PlayersRow();
  return CardSet::OfPack(
      [row](int card) { return row.Has(card) && IsPlayable(static_cast<Integer>(card)); });
}

}  // namespace

bool IsPlayable(Integer card) {
  return PlayerTurn != False && MayPlayCard(Player, card, HumansPosition());
}

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

bool HandWalk::GoToNextPlayable() {
  const CardSet playable = Playable();
  card_ = NextOf(playable, card_);
  return !playable.IsEmpty();
}

bool HandWalk::GoToPlayableBefore() {
  const CardSet playable = Playable();
  card_ = HighestOr(Below(playable, card_), HighestOr(playable, card_));
  return !playable.IsEmpty();
}

void HandWalk::GoToNextOfSuit(Integer suit) {
  const Integer first = FirstCardOf(suit);
  card_ = NextOf(PlayersRow().Between(first, first + CardsInSuit - 1), card_);
}

}  // namespace Parlino
