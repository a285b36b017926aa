// A mouse at rest while the table changes below it: Qt looks at what lies there only when the mouse
// moves.
#pragma once

#include "engine/state/Errors.h"

class QPoint;
class QWidget;

namespace Parlino {

class PendingEvents;

class RestingPointer {
 public:
  // The table window, and the queue for the events.
  RestingPointer(QWidget& window, PendingEvents& pending) : window_(window), pending_(pending) {}

  // To be called when everything is shown as in the model. If the card of the Player's hand that is
  // visible below the mouse has a hint that does not hold, it is reported as if the mouse had moved
  // there. If another card than before lies there, or none, Qt is told. Nothing is done while a
  // card is still moving there, or while a person could not move the mouse there.
  void Follow();

 private:
  [[nodiscard]] bool IsOnTable() const;
  void EnterAgain(QPoint place);

  QWidget& window_;
  PendingEvents& pending_;
  const QWidget* card_ = nullptr;  // of the Player's hand, below the mouse at the last call
};

}  // namespace Parlino
