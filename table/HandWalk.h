// Keyboard navigation in the Player's hand: which card is marked.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

class HandWalk {
 public:
  // The marked card 1..52, or 0 while there is no hand or it is being dealt.
  [[nodiscard]] Integer Card() const { return card_; }

  // Adjusts the mark after a change of the hand. It stays on its card; once that has been played,
  // on its place in the row, where the next card will lie, or on the last card.
  void Follow();

  // Each moves the mark, if there is a card to move it to.
  void GoTo(Integer card);
  void GoToFirst();
  void GoToLast();
  void GoLeft();
  void GoRight();

  // Move the mark to the next or the previous of these cards, wrapping round at the end of the row.
  // GoToNext returns whether there are any.
  bool GoToNext(CardSet cards);
  void GoToOneBefore(CardSet cards);
  void GoToNextOfSuit(Integer suit);

 private:
  Integer card_ = 0;
};

}  // namespace Parlino
