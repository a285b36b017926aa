// What the buttons drawn by us do with keys.
#pragma once

#include <QAbstractButton>

#include "table/window/input/Keys.h"

namespace Parlino {

// Answers to Space and Enter while it has the focus, once however long they are held. All other
// keys, and those two together with Ctrl or Alt, are left to what holds the button.
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
