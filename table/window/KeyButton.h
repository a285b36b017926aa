// What the buttons drawn by us do with keys.
#pragma once

#include <QAbstractButton>

#include "table/window/Keys.h"

namespace Parlino {

// Answers to Space and Enter while it has the focus, once however long they are held. All other
// keys are left to what holds the button.
class KeyButton : public QAbstractButton {
 public:
  using QAbstractButton::QAbstractButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Space)
      QAbstractButton::keyPressEvent(event);
    else if (!IsEnter(*event))
      event->ignore();
    else if (!event->isAutoRepeat())
      click();
  }
};

}  // namespace Parlino
