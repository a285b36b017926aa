// Tells a key that is held down from one that is pressed again and again, for the whole program.
#pragma once

#include <QObject>

namespace Parlino {

// Some desktops send a key that is held down as a release and a press of the same moment. The
// Qt recognises the two only when both have arrived, which is a matter of luck; here each such
// press is marked as a repeated one on its way to the window.
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
