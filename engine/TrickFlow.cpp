#include "engine/TrickFlow.h"

#include "engine/TrickPlay.h"
#include "engine/state/ErrorReport.h"
#include "engine/state/Questions.h"
#include "persistence/DataFiles.h"
#include "platform/Platform.h"
#include "table/CardDisplay.h"
#include "table/MessageDialog.h"
#include "table/SeatControls.h"

namespace Parlino {
namespace {

constexpr std::string_view TrickSeparator = "=======================================";

void CountTrick() {
  const Integer winner = TrickWinner;
  TricksWon[winner] = ToInteger(TricksWon[winner] + 1);
  SetCaption(CountsInFrame[winner].tricks, {TricksWon[winner]});
  SetCaption(Table.LblInfo, {NameOf(winner), " won this trick and will now lead a card"});
  Leader = winner;
  SetCaption(Table.LblPNMade, {OurTricks()});
  SetCaption(Table.LblWEMade, {TheirTricks()});
}

// A sum that would overflow is reported and the value stays as it is; the hand is settled all the
// same, because a player who has come that far wants to go on. The report names the round driver,
// as it does for everything in a hand without a report of its own.
void AddTo(Integer& total, int amount) {
  ReportErrors("DealNewRound", [&total, amount] { total = ToInteger(total + amount); });
}

void ScoreHand() {
  OurHandScore = HandScore(OurTricks(), OurBid);
  TheirHandScore = HandScore(TheirTricks(), TheirBid);
  AddTo(OurPoints, OurHandScore);
  SetCaption(Table.StatusBar1[2], {"Your team points:- ", OurPoints});
  AddTo(TheirPoints, TheirHandScore);
  SetCaption(Table.StatusBar1[3], {"Their team points:- ", TheirPoints});
}

void ShowScores() {
  constexpr std::string_view ending =
      " Total score not reached, or scores are the same. Click Next Hand or Save and Exit";
  ShowMessage(
      JoinText({PlayerName, " and ", SeatNames[North], " have scored ", OurHandScore,
                " for this hand making a total score todate of ", OurPoints, " and  ",
                SeatNames[West], " and ", SeatNames[East], " score this hand is ", TheirHandScore,
                " their total score todate is  ", TheirPoints, " ", ending}),
      "Next Hand", "Save and Exit", "", 3, "Scores");
}

// A score that cannot be saved is not thrown away: the player is asked again.
void OfferNextHand() {
  while (true) {
    ShowScores();
    if (MessageChoice == 0) return;
    GameInProgress = True;
    const bool gameSaved = SaveGame();
    const bool pointsSaved = SavePoints();
    if (gameSaved && pointsSaved) UnloadAllForms();
  }
}

void CountGame(bool won) {
  if (won) AddTo(GamesWon, 1);
  AddTo(GamesPlayed, 1);
}

std::string GameOverPrompt(bool won) {
  constexpr std::string_view ending =
      ". See statistics for number of games won or lost. Click on New Game or Exit to leave.";
  return won ? JoinText({"Well done, you and your partner won that game with a total score of ",
                         OurPoints, " against their total  team score of ", TheirPoints, ending})
             : JoinText({"Unfortunately the enemy won that game with a score of ", TheirPoints,
                         " against your team score of  ", OurPoints, ending});
}

// The files are also written before the answer, because the desktop may end the program while the
// dialog is open. A player who wants to leave is asked again if the files could not be written.
void EndGame() {
  GameInProgress = False;
  const bool won = OurPoints > TheirPoints;
  CountGame(won);
  SaveEndedGame();
  const std::string prompt = GameOverPrompt(won);
  while (true) {
    ShowMessage(prompt, "New Game", "Exit", "", won ? 1 : 2, "Game Over");
    OurPoints = TheirPoints = 0;
    const bool pointsSaved = SavePoints();
    const bool gameSaved = SaveGame();
    if (MessageChoice == 0) return;
    if (pointsSaved && gameSaved) UnloadAllForms();
  }
}

}  // namespace

void LeadNextTrick(Integer leader) {
  PlayTrick(leader);
  while (TrickNumber < TricksInHand) PlayTrick(Leader);
  ScoreHand();
  if (GameIsOver())
    EndGame();
  else
    OfferNextHand();
}

void PlayTrick(Integer leader) {
  TrickNumber = ToInteger(TrickNumber + 1);
  Show(Table.LblInfo);
  for (int position = 1; position <= SeatsAtTable; ++position) {
    const Integer seat = SeatAfter(leader, position - 1);
    if (seat == Player)
      TakeHumansTurn();
    else
      TakeRobotsTurn(position, seat);
  }
  AddLine(Table.LstCardsPlayed, {TrickSeparator});
  GetTrickWinner();
  CountTrick();
  JustMoveCardsOut(TrickWinner);
}

void GetTrickWinner() {
  TrickWinner = WinnerOfTrick();
}

void TellHandIsOver() {
  ThePlatform().MsgBox(" the hand is over check  the scores", ApplicationTitle, false);
}

}  // namespace Parlino
