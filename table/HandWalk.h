// The way of the keys through the Player's hand: which of its cards is marked.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

class HandWalk {
 public:
  // The marked card 1..52, or 0 while there is no hand or it is being dealt.
  [[nodiscard]] Integer Card() const { return card_; }

  // Looks at the hand again. The mark keeps to its card; when that has been played, to its place in
  // the row, where the next card will lie, or to the last one.
  void Follow();

  // Each moves the mark, if there is a card to move it to.
  void GoTo(Integer card);
  void GoToFirst();
  void GoToLast();
  void GoLeft();
  void GoRight();

  // The next of these cards of the row, or the one before, round the end; GoToNext returns false
  // without any.
  bool GoToNext(CardSet cards);
  void GoToOneBefore(CardSet cards);
  void GoToNextOfSuit(Integer suit);

 private:
  Integer card_ = 0;
};

}  // namespace Parlino
