// The table window: the menu bar and, below it, the table of a fixed size. The window may be
// resized; nothing in it moves.
#pragma once

#include <QWidget>

#include "table/window/TableMirror.h"

namespace Parlino {

class PendingEvents;

class TableWindow : public QWidget {
 public:
  explicit TableWindow(PendingEvents& pending);

  // Shows what has changed in the model, the window itself included.
  void ShowModel();

 protected:
  void paintEvent(QPaintEvent* event) override;
  // The game is asked; only the game closes the window.
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildTable();
  void PutInMiddleOfScreen();
  void TakeIcon();

  PendingEvents& pending_;
  TableMirror mirror_;
  QWidget* table_;
  bool wasPainted_ = false;
};

}  // namespace Parlino
