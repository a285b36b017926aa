// One of the thirteen buttons of the bidding panel.
#pragma once

#include "table/TableView.h"
#include "table/window/input/KeyButton.h"

namespace Parlino {

// A small square with a number. It responds to the mouse, and to Space and Enter while it has the
// focus.
class BidFace : public KeyButton {
 public:
  explicit BidFace(QWidget* parent);

  void ShowModel(const BidButton& button);
  // Whether the face shows that it has the focus; a mouse player has no use for that.
  void MarkFocus(bool marked);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool marksFocus_ = false;
};

}  // namespace Parlino
