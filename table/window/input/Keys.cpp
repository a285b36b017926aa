#include "table/window/input/Keys.h"

#include "engine/state/GameState.h"

namespace Parlino {

std::optional<int> DigitOf(const QKeyEvent& key) {
  if (key.text().size() != 1 || !key.text().front().isDigit()) return std::nullopt;
  return key.text().front().digitValue();
}

std::optional<Integer> SuitOf(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_D:
      return Diamonds;
    case Qt::Key_C:
      return Clubs;
    case Qt::Key_H:
      return Hearts;
    case Qt::Key_S:
      return Spades;
    default:
      return std::nullopt;
  }
}

}  // namespace Parlino
