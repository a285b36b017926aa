// The help and the about window, each made when it is first wanted: the program's start does not
// wait for them.
#pragma once

#include <memory>

#include "platform/Platform.h"
#include "table/window/help/AboutWindow.h"
#include "table/window/help/HelpWindow.h"

namespace Parlino {

class HelpAndAboutWindows {
 public:
  HelpAndAboutWindows(PendingEvents& pending, QWidget& table) : pending_(pending), table_(table) {}

  // Shows what has changed in the models of both windows.
  void ShowModel();
  // Closes one of them for good; any other window is passed over.
  void Close(WindowName window);

 private:
  PendingEvents& pending_;
  QWidget& table_;
  std::unique_ptr<HelpWindow> help_;
  std::unique_ptr<AboutWindow> about_;
};

}  // namespace Parlino
