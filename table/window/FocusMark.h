// The frame round the card of the hand that the keys have reached.
#pragma once

#include <QWidget>

namespace Parlino {

class FocusMark : public QWidget {
 public:
  explicit FocusMark(QWidget* table);

  // Frames the part of the table that is given, in pixels.
  void Frame(QRect part);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace Parlino
