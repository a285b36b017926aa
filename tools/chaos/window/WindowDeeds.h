// What a person can do to the program, done at its windows: each deed in one of the ways that the
// window offers.
#pragma once

#include "tools/chaos/window/Fingers.h"

class QAction;
class QDialog;

namespace Parlino {

class WindowDeeds {
 public:
  WindowDeeds(ChaosSession& session, Fingers& fingers) : session_(session), fingers_(fingers) {}

  // Does the deed, or something to a box that is in front of the table. Returns whether the control
  // was on the screen.
  bool Do(const Deed& deed);

 private:
  struct WayOut;

  bool Bid(QWidget& button);
  bool Answer(int answer);
  bool AnswerBox(QDialog& box);
  bool ChooseMenu(int item);
  void ClickEntry(QAction& entry, QWidget& place);
  bool Leave(const WayOut& way);

  ChaosSession& session_;
  Fingers& fingers_;
};

}  // namespace Parlino
