// The events of the table and the doors through which they are fired. A person at the window, a
// script and a test all come in here. A door fires its event only when a person could reach the
// control: while it is visible and no dialog is in front of it.
#pragma once

#include <cstdint>
#include <string_view>

#include "engine/state/Errors.h"

namespace Parlino {

enum class MenuItem {
  MnuNew,
  MnuLoad,
  MnuSave,
  MnuExit,
  MnuRules,
  MnuAbout,
  MnuPname,
  MnuNameBot1,
  MnuNameBot2,
  MnuBot3Name,
  MnuView,
  ErasePoints,
};

// The handlers, bound once at the start of the program. Only a menu item may have none.
struct TableEvents {
  using Handler = void (*)();
  using IndexHandler = void (*)(Integer index);

  Handler Form_Load = nullptr;
  Handler Form_QueryUnload = nullptr;
  IndexHandler Cds_Click = nullptr;
  IndexHandler Cds_MouseMove = nullptr;
  IndexHandler LblBids_Click = nullptr;
  Handler CmdDontShow_Click = nullptr;
  Handler MenuClick[12] = {};  // by MenuItem
};

inline TableEvents Events;

// Whether the table window is open and no message dialog is in front of it. A dialog that has just
// been answered still counts: a command let in then would run inside the one that asked.
bool TableTakesInput();

// Each fires its event and returns true, or does nothing and returns false.
bool ClickCard(int card);
bool HoverCard(int card);
bool ClickBid(int tricks);
bool ClickDontShow();
bool ChooseMenu(MenuItem item);
bool CloseTableWindow();  // by its close box
bool PressAnswer(int button);
bool ClickAnswer(int button);
bool CloseHelp();   // by its button, its close box or the keyboard
bool CloseAbout();  // likewise
bool ClickSysInfo();

}  // namespace Parlino
