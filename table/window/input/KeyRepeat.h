// Tells a key that is held down from one that is pressed again and again, for the whole program.
#pragma once

#include <QObject>

namespace Parlino {

// Some desktops send a key that is held down as a release and a press with the same timestamp. Qt
// recognises the pair only if both have arrived when it looks, which is a matter of luck; here each
// such press is marked as a repeat on its way to the window.
class KeyRepeat : public QObject {
 public:
  KeyRepeat();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int releasedKey_ = 0;
  quint64 releasedAt_ = 0;
};

}  // namespace Parlino
