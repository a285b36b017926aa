#include "table/TableEvents.h"

#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

bool Fire(TableEvents::Handler handler, bool isReachable = true) {
  if (!isReachable || !TableTakesInput() || handler == nullptr) return false;
  handler();
  return true;
}

bool FireOn(const Control& control, TableEvents::IndexHandler handler, int index) {
  if (!control.Visible || !TableTakesInput()) return false;
  handler(ToInteger(index));
  return true;
}

bool TakesAnswer(int button) {
  return MFormDeluxe.Visible && MFormDeluxe.Faces[button].Visible;
}

}  // namespace

bool TableTakesInput() {
  return Table.FrmMain.Visible && !MFormDeluxe.IsWaiting;
}

bool ClickCard(int card) {
  return FireOn(Table.Cds[card], Events.Cds_Click, card);
}

bool HoverCard(int card) {
  return FireOn(Table.Cds[card], Events.Cds_MouseMove, card);
}

bool ClickBid(int tricks) {
  return Table.LblBids[tricks].Visible && FireOn(Table.FramBids, Events.LblBids_Click, tricks);
}

bool ClickDontShow() {
  return Fire(Events.CmdDontShow_Click, Table.CmdDontShow.Visible);
}

bool ChooseMenu(MenuItem item) {
  return Fire(Events.MenuClick[static_cast<int>(item)]);
}

bool CloseTableWindow() {
  return Fire(Events.Form_QueryUnload);
}

bool PressAnswer(int button) {
  if (!TakesAnswer(button)) return false;
  Label1_MouseDown(ToInteger(button));
  return true;
}

bool ClickAnswer(int button) {
  if (!TakesAnswer(button)) return false;
  Label1_Click(ToInteger(button));
  return true;
}

// The message dialog blocks the help and the about window as it does the table.
bool CloseHelp() {
  return Fire(btnClose_Click, frmHelp.Visible);
}

bool CloseAbout() {
  return Fire(cmdOK_Click, frmAbout.Loaded);
}

bool ClickSysInfo() {
  return Fire(cmdSysInfo_Click, frmAbout.Loaded);
}

}  // namespace Parlino
