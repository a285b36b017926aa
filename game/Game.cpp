#include "game/Game.h"

#include "engine/RoundDriver.h"
#include "engine/StartUp.h"
#include "engine/TrickPlay.h"
#include "engine/state/ErrorReport.h"
#include "engine/state/GameState.h"
#include "persistence/commands/PlayerCommands.h"
#include "platform/Platform.h"
#include "table/CardDisplay.h"
#include "table/ErrorBox.h"
#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

void BindMenu(MenuItem item, TableEvents::Handler handler) {
  Events.MenuClick[static_cast<int>(item)] = handler;
}

void BindEvents() {
  Events.Form_Load = Form_Load;
  Events.Form_QueryUnload = Form_QueryUnload;
  Events.Cds_Click = Cds_Click;
  Events.Cds_MouseMove = Cds_MouseMove;
  Events.LblBids_Click = LblBids_Click;
  Events.CmdDontShow_Click = CmdDontShow_Click;
  BindMenu(MenuItem::MnuNew, MnuNew_Click);
  BindMenu(MenuItem::MnuLoad, MnuLoad_Click);
  BindMenu(MenuItem::MnuExit, MnuExit_Click);
  BindMenu(MenuItem::MnuRules, MnuRules_Click);
  BindMenu(MenuItem::MnuAbout, MnuAbout_Click);
  BindMenu(MenuItem::MnuPname, MnuPname_Click);
  BindMenu(MenuItem::MnuNameBot1, MnuNameBot1_Click);
  BindMenu(MenuItem::MnuNameBot2, MnuNameBot2_Click);
  BindMenu(MenuItem::MnuBot3Name, MnuBot3Name_Click);
  BindMenu(MenuItem::MnuView, MnuView_Click);
  BindMenu(MenuItem::ErasePoints, ErasePoints_Click);
}

}  // namespace

void SetUpGame(Platform& platform) {
  UsePlatform(platform);
  ShowErrorReport = ShowErrorBox;
  ResetGameState();
  OpenTable();
  MFormDeluxe = {};
  frmHelp = {};
  frmAbout = {};
  BindEvents();
}

int RunGame() {
  try {
    Events.Form_Load();
    while (true) ReportErrors("RunGame", WaitForEvents);
  } catch (const ProgramEnded&) {
    return 0;
  }
}

}  // namespace Parlino
