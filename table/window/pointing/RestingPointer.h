// A pointer at rest while the table changes below it: the toolkit looks at what lies there only
// when the pointer moves.
#pragma once

#include "engine/state/Errors.h"

class QPoint;
class QWidget;

namespace Parlino {

class PendingEvents;

class RestingPointer {
 public:
  // The table window, and the place for the events.
  RestingPointer(QWidget& window, PendingEvents& pending) : window_(window), pending_(pending) {}

  // To be called when everything is shown as it stands. The card of the Player's hand that is seen
  // below the pointer is reported, as if the pointer had moved there, when its hint does not hold;
  // and when another card than before lies there, or none, the toolkit is told. Nothing is done
  // while a card is on its way there, or while a person could not move the pointer there.
  void Follow();

 private:
  [[nodiscard]] bool IsOnTable() const;
  void EnterAgain(QPoint place);

  QWidget& window_;
  PendingEvents& pending_;
  const QWidget* card_ = nullptr;  // of the Player's hand, below the pointer when last looked at
};

}  // namespace Parlino
