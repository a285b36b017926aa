// The caption of an answer in the message dialog: the part of the button that takes the clicks.
#pragma once

#include <QAbstractButton>

namespace Parlino {

class PendingEvents;

// Reports when it goes down and when it is clicked, by the mouse, by Space or by Enter. It draws no
// ground: the face below it shows through.
class AnswerCaption : public QAbstractButton {
 public:
  AnswerCaption(int answer, PendingEvents& pending, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace Parlino
