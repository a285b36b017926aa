// A button with a face in the one colour that its palette has for buttons.
#pragma once

#include <QPushButton>

namespace Parlino {

// Lighter under the mouse, darker and its caption lower while it is pressed.
class FlatButton : public QPushButton {
 public:
  FlatButton(const QString& caption, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace Parlino
