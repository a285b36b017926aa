// Decides which cards show the pointer and the tool tip that the model gives them.
#pragma once

#include "engine/state/GameState.h"

namespace Parlino {

struct TableWidgets;

class CardHints {
 public:
  explicit CardHints(const TableWidgets& widgets) : widgets_(widgets) {}

  // To be called when the table shows a change. The model leaves a hint on a card that has been
  // played or dealt again, and on one whose turn is over; here it is shown only on a card that lies
  // face up in the Player's hand, and only while it is true.
  void Follow();

 private:
  const TableWidgets& widgets_;
  CardSet shown_;
};

}  // namespace Parlino
