// The help window: the text, the Close button below it and the line that finds words. It can be
// resized, and the text area grows with it.
#pragma once

#include <QWidget>

#include "table/HelpAndAbout.h"
#include "table/window/speaking/Speaker.h"

class QPushButton;

namespace Parlino {

class FindLine;
class HelpText;
class PendingEvents;

class HelpWindow : public QWidget, public Speaker {
 public:
  // `table` determines the screen on which the window opens. It does not own the window, because
  // the table may cover the help.
  HelpWindow(PendingEvents& pending, const QWidget& table);

  void ShowModel(const HelpWindowView& help);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // Only asks the game, which then hides the window.
  void closeEvent(QCloseEvent* event) override;

 private:
  void BindKeys();
  void AskToClose();

  PendingEvents& pending_;
  HelpText* text_;
  FindLine* find_;
  QPushButton* close_;
  int showings_ = 0;  // as last shown
};

}  // namespace Parlino
