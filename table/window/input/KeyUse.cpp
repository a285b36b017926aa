#include "table/window/input/KeyUse.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>

namespace Parlino {

KeyUse::KeyUse() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool KeyUse::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) Set(false);
  return false;
}

void KeyUse::Set(bool isOn) {
  if (std::exchange(isOn_, isOn) != isOn) emit Changed();
}

}  // namespace Parlino
