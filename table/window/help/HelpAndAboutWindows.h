// The help and about windows. Each is created when it is first asked for, so that they do not slow
// down the program's start.
#pragma once

#include <memory>

#include "platform/Platform.h"
#include "table/window/help/AboutWindow.h"
#include "table/window/help/HelpWindow.h"

namespace Parlino {

class HelpAndAboutWindows {
 public:
  HelpAndAboutWindows(PendingEvents& pending, QWidget& table) : pending_(pending), table_(table) {}

  // Shows what has changed in the models of the two windows.
  void ShowModel();
  // Closes one of the two for good; any other window is ignored.
  void Close(WindowName window);

 private:
  PendingEvents& pending_;
  QWidget& table_;
  std::unique_ptr<HelpWindow> help_;
  std::unique_ptr<AboutWindow> about_;
};

}  // namespace Parlino
