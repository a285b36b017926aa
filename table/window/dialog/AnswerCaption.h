// The caption of an answer in the message dialog: the part of the button that takes the clicks.
#pragma once

#include "table/window/input/KeyButton.h"

namespace Parlino {

class PendingEvents;

// Reports when it is pressed down and when it is clicked, by the mouse, Space or Enter. It paints
// no background, so the face behind it shows through.
class AnswerCaption : public KeyButton {
 public:
  AnswerCaption(int answer, PendingEvents& pending, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace Parlino
