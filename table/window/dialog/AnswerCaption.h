// The caption of an answer in the message dialog: the part of the button that takes the clicks.
#pragma once

#include "table/window/input/KeyButton.h"

namespace Parlino {

class PendingEvents;

// Reports when it goes down and when it is clicked, by the mouse, by Space or by Enter. It draws no
// ground: the face below it shows through.
class AnswerCaption : public KeyButton {
 public:
  AnswerCaption(int answer, PendingEvents& pending, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace Parlino
