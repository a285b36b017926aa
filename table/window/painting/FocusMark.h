// The frame round the card of the hand that the keys have reached, with a pointer above it while
// the card may be played.
#pragma once

#include <QWidget>

namespace Parlino {

class FocusMark : public QWidget {
 public:
  explicit FocusMark(QWidget* table);

  // Frames the card, of which `seenWidth` pixels are not covered by the next one.
  void Frame(QRect card, int seenWidth, bool isPlayable);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool hasPointer_ = false;
};

}  // namespace Parlino
