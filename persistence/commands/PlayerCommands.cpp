#include "persistence/commands/PlayerCommands.h"

#include <cerrno>

#include "engine/RoundDriver.h"
#include "engine/StartUp.h"
#include "engine/state/GameState.h"
#include "persistence/DataFiles.h"
#include "persistence/Records.h"
#include "platform/Platform.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

struct NameQuestion {
  std::string_view prompt;
  std::string_view title;
  std::string_view defaultAnswer;
};

constexpr NameQuestion NameQuestions[SeatsAtTable] = {
    {"Replace name Player?", "Enter your name ", "You name please"},
    {"Replace West Robot with name of your choice?", "Enter name of West Bot", "West Bot"},
    {"Replace North Robot with name of your choice?", "Enter name of North Bot", "North Bot"},
    {"Replace East Robot with name of your choice?", "Enter name of East Bot", "East Bot"},
};

void AskForName(Integer seat) {
  const NameQuestion& question = NameQuestions[seat];
  SeatNames[seat] =
      KeepStorable(ThePlatform().InputBox(question.prompt, question.title, question.defaultAnswer));
  if (seat == Player) PlayerName = SeatNames[Player];
  SaveNames();
  ShowNames();
}

void AskWhetherToExit() {
  ShowMessage(
      JoinText({PlayerName, " you are in the middle of a game, do you really wish to exit?"}),
      "Yes Exit", "Carry On", "", 3, "Really Exit?", 1);
  if (MessageChoice == 0) UnloadAllForms();
}

// A missing file means that there is no saved game, and the dialog says so. A file that is there
// but cannot be read belongs to the player, who is told about it.
bool ReadSavedGame() {
  try {
    ReadRecord(SaveGameFile);
  } catch (const GameError& error) {
    if (error.Number() != ENOENT) ThePlatform().MsgBox(error.what(), ApplicationTitle, false);
    return false;
  }
  return OurPoints != 0 && TheirPoints != 0 && GameInProgress == True;
}

}  // namespace

void MnuPname_Click() {
  AskForName(Player);
}
void MnuNameBot1_Click() {
  AskForName(West);
}
void MnuNameBot2_Click() {
  AskForName(North);
}
void MnuBot3Name_Click() {
  AskForName(East);
}

void MnuView_Click() {
  const bool winning = 2 * GamesWon > GamesPlayed;
  ShowMessage(JoinText({PlayerName, " You are now winning ", GamesWon, " out of  ", GamesPlayed}),
              "O.K", "", "", winning ? 1 : 2, winning ? "Beating 'Em" : "They are Winning");
}

void ErasePoints_Click() {
  ShowMessage(JoinText({PlayerName, " Put number of games won and total played back to zero?"}),
              "Yes Please", "Ooops No", "", 3, "Delete statistics?", 1);
  if (MessageChoice != 0) return;
  GamesPlayed = 0;
  GamesWon = 0;
  SavePoints();
}

void MnuLoad_Click() {
  if (ReadSavedGame()) {
    SetCaption(Table.StatusBar1[2], {"Your team points ", OurPoints});
    SetCaption(Table.StatusBar1[3], {"Their team points ", TheirPoints});
  } else {
    ShowMessage("You do not have a saved game. New game will start automatically", "O.K.", "", "",
                3, "No saved game");
  }
  DealNewRound();
}

void MnuExit_Click() {
  if (GameInProgress != True) UnloadAllForms();
  AskWhetherToExit();
}

void Form_QueryUnload() {
  AskWhetherToExit();
}

void CmdDontShow_Click() {
  HideWelcome = True;
  SaveWelcome();
}

}  // namespace Parlino
