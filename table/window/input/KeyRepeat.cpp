#include "table/window/input/KeyRepeat.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace Parlino {

KeyRepeat::KeyRepeat() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool KeyRepeat::eventFilter(QObject* watched, QEvent* event) {
  const bool isRelease = event->type() == QEvent::KeyRelease;
  if (!watched->isWindowType() || !(isRelease || event->type() == QEvent::KeyPress)) return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (isRelease) {
    releasedKey_ = key.key();
    releasedAt_ = key.timestamp();
    return false;
  }
  const bool isOfSameMoment = key.timestamp() != 0 && key.timestamp() == releasedAt_;
  if (key.isAutoRepeat() || !isOfSameMoment || key.key() != releasedKey_) return false;
  QKeyEvent held(QEvent::KeyPress, key.key(), key.modifiers(), key.nativeScanCode(),
                 key.nativeVirtualKey(), key.nativeModifiers(), key.text(), true);
  held.setTimestamp(key.timestamp());
  QCoreApplication::sendEvent(watched, &held);
  return true;
}

}  // namespace Parlino
