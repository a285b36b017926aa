// The frame around the card of the hand that the keys have reached: subdued while no card is asked
// for, and with a pointer above it while the card may be played.
#pragma once

#include <QWidget>

namespace Parlino {

enum class MarkLook { AtRest, Plain, Pointing };

class FocusMark : public QWidget {
 public:
  explicit FocusMark(QWidget* table);

  // Frames the card; the next card leaves `seenWidth` pixels of it visible.
  void Frame(QRect card, int seenWidth, MarkLook look);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  MarkLook look_ = MarkLook::AtRest;
};

}  // namespace Parlino
