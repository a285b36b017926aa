// The frame around the card of the hand that the keys have reached, with a pointer above it while
// the card may be played.
#pragma once

#include <QWidget>

namespace Parlino {

class FocusMark : public QWidget {
 public:
  explicit FocusMark(QWidget* table);

  // Frames the card; the next card leaves `seenWidth` pixels of it visible.
  void Frame(QRect card, int seenWidth, bool isPlayable);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool hasPointer_ = false;
};

}  // namespace Parlino
