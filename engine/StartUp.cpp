#include "engine/StartUp.h"

#include "engine/state/ErrorReport.h"
#include "engine/state/GameState.h"
#include "persistence/DataFiles.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr Integer NormalPauseMs = 150;
constexpr TablePoint WestGreetingPlace{1815, 2400};
constexpr TablePoint EastGreetingPlace{8500, 2400};

// The first values are set before the file is read, so that they remain if it cannot be.
void ReadOrUseFirst(std::string_view file) {
  UseFirstRecord(file);
  ReportErrors("Form_Load", [file] { ReadRecord(file); });
}

void PlaceGreetings() {
  ShowNames();
  MoveTo(Table.LblName[West], WestGreetingPlace);
  MoveTo(Table.LblName[East], EastGreetingPlace);
}

void SkipWelcomePanel() {
  Hide(Table.lblTitle);
  Hide(Table.CmdDontShow);
  Hide(Table.LblIntro);
  SetCaption(Table.LblInfo, {" Press F2 for new game"});
  Show(Table.Shape1);
}

}  // namespace

void Form_Load() {
  ReportErrors("Form_Load", [] {
    ReadOrUseFirst(SaveGameFile);
    ReadOrUseFirst(NamesFile);
    ReadOrUseFirst(PointsFile);
    SeatNames[Player] = PlayerName;
    PlaceGreetings();
    DefaultPauseMs = NormalPauseMs;
    ReadOrUseFirst(WelcomeFile);
    if (HideWelcome == True)
      SkipWelcomePanel();
    else
      Hide(Table.FramScores);
    CreateCardPictures();
    SetItUp();
    Show(Table.FrmMain);
  });
}

void ShowNames() {
  SetCaption(Table.LblName[Player], {PlayerName});
  SetCaption(Table.LblName[West], {SeatNames[West], "- Welcome ", PlayerName});
  SetCaption(Table.LblName[North], {SeatNames[North], " - Hello and Welcome ", PlayerName});
  SetCaption(Table.LblName[East], {SeatNames[East], " - Hi "});
}

}  // namespace Parlino
