// How the buttons that the game draws itself respond to keys.
#pragma once

#include <QAbstractButton>

#include "table/window/input/Keys.h"

namespace Parlino {

// Responds to Space and Enter while it has the focus, once however long they are held. All other
// keys, and these two together with Ctrl or Alt, are left to the parent widget.
class KeyButton : public QAbstractButton {
 public:
  using QAbstractButton::QAbstractButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (!IsPlain(*event) || !IsEnterOrSpace(*event))
      event->ignore();
    else if (!IsEnter(*event))
      QAbstractButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
      click();
  }
};

}  // namespace Parlino
