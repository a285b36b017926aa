// Keys as a player names them.
#pragma once

#include <QKeyEvent>

namespace Parlino {

// Enter, of the letters or of the numbers.
inline bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace Parlino
