// The scrolling area that holds the table: if the window is too small for it, scroll bars lead to
// the rest. In a larger window the table lies at the top left.
#pragma once

#include <QScrollArea>

namespace Parlino {

class ScrolledTable : public QScrollArea {
 public:
  // Takes ownership of the table.
  ScrolledTable(QWidget* table, QWidget* parent);
  ~ScrolledTable() override;

  // The size of a window that shows all of the table; `around` is the space that the rest of the
  // window needs. If there is less room than that, the size fits into it and leaves space for the
  // scroll bar that is then needed.
  [[nodiscard]] QSize WindowSize(QSize around, QSize room) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowFocus(QWidget* focus);
};

}  // namespace Parlino
