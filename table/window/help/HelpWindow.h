// The help window: the text, the button below it and the line that finds words. It may be resized;
// the text grows with it.
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
  // `table` says on which screen the window opens; it does not own it, for the help may lie behind
  // the table.
  HelpWindow(PendingEvents& pending, const QWidget& table);

  void ShowModel(const HelpWindowView& help);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // The game is asked, which hides the window.
  void closeEvent(QCloseEvent* event) override;

 private:
  void BindKeys();
  void AskToClose();

  PendingEvents& pending_;
  HelpText* text_;
  FindLine* find_;
  QPushButton* close_;
  int showings_ = 0;  // as shown
};

}  // namespace Parlino
