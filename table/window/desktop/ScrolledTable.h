// The room for the table: where the window is too small for it, scroll bars lead to the rest. In
// more room the table lies at the top left.
#pragma once

#include <QScrollArea>

namespace Parlino {

class ScrolledTable : public QScrollArea {
 public:
  // Takes the table over.
  ScrolledTable(QWidget* table, QWidget* parent);

  // The size of a window that shows all of the table, `around` being what else the window holds.
  // With less room than that it is made to fit, but has room for the scroll bar it needs.
  [[nodiscard]] QSize WindowSize(QSize around, QSize room) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowFocus(QWidget* focus);
};

}  // namespace Parlino
