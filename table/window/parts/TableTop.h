// The green cloth of the table in its brown frame, lit from the upper left.
#pragma once

#include <QWidget>

namespace Parlino {

class TableTop : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace Parlino
