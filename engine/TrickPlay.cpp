#include "engine/TrickPlay.h"

#include "engine/state/ErrorReport.h"
#include "engine/state/LedSuitQuery.h"
#include "engine/state/Questions.h"
#include "robots/Choices.h"
#include "table/CardDisplay.h"

namespace Parlino {
namespace {

constexpr Integer NoteMs = 500;

// Set while the follow-suit note is shown. Further wrong clicks are then ignored; otherwise each
// would show another note inside the pause of the one before.
bool followSuitNoteIsUp = false;

void ShowFollowSuitNote() {
  if (followSuitNoteIsUp) return;
  struct Mark {
    Mark() { followSuitNoteIsUp = true; }
    ~Mark() { followSuitNoteIsUp = false; }
  } const mark;
  ShowInfoNote({PlayerName, " sorry, you must follow suit. Please try again"}, NoteMs);
}

struct Hint {
  Integer pointer;
  std::string text;
};

Hint HintNow() {
  if (PlayerTurn != False)
    return {PicturePointerPlay, JoinText({PlayerName, " left click the card you wish to play."})};
  return {PicturePointerWait, JoinText({PlayerName, " sorry, it is not your turn at the moment."})};
}

void PutCardOnTable(Integer seat, Integer card) {
  MoveToMiddle(card, seat);
  PlayCardSound();
  Pack[card].Owner = NoSeat;
  AddLine(Table.LstCardsPlayed, {NameOf(seat), " played ", Pack[card].FullName});
}

void PlayHumansCard(Integer card) {
  PlayerTurn = False;  // clicks still arrive in the pause below, but the turn has its card
  RecordInTrick(HumansPosition(), Player, card);
  PutCardOnTable(Player, card);
  PlayerHasPlayed = True;
}

}  // namespace

void RecordInTrick(int position, Integer seat, Integer card) {
  TrickCards[position] = card;
  TrickSuits[position] = Pack[card].Suit;
  TrickSeats[position] = seat;
}

void TakeHumansTurn() {
  PlayerTurn = True;
  SetCaption(Table.LblInfo, {PlayerName, " please play a card."});
  while (PlayerHasPlayed == False) WaitForEvents();
  PlayerHasPlayed = False;
  PlayerTurn = False;
}

void Cds_Click(Integer card) {
  ReportErrors("Cds_Click", [card] {
    if (Pack[card].Owner != Player || PlayerTurn == False || GameInProgress == False) return;
    // Asked for its side effect: it resets the pause of a player who cannot follow suit.
    if (Leader != Player) HasStartSuitQuery(Player);
    if (MayPlayCard(card))
      PlayHumansCard(card);
    else
      ShowFollowSuitNote();
  });
}

void Cds_MouseMove(Integer card) {
  if (Pack[card].Owner != Player) return;
  const Hint hint = HintNow();
  SetMousePointer(Table.Cds[card], hint.pointer);
  SetToolTip(Table.Cds[card], {hint.text});
}

bool HintHolds(Integer card) {
  const PictureBox& picture = Table.Cds[card];
  if (Pack[card].Owner != Player || picture.MousePointer == 0) return false;
  const Hint hint = HintNow();
  return picture.MousePointer == hint.pointer && picture.ToolTipText == hint.text;
}

void PlayCard(Integer seat, Integer card) {
  ReportErrors("PlayCard", [seat, card] {
    SetPicture(Table.Cds[card], card);
    ShowInfoNote({"Card being played is  ", Pack[card].FullName}, NoteMs);
    PutCardOnTable(seat, card);
    PauseMs = DefaultPauseMs;
  });
}

void TakeRobotsTurn(int position, Integer seat) {
  static constexpr std::string_view procedures[] = {"PlayFirstCard", "PlaySecondCard",
                                                    "PlayThirdCard", "PlayFourthCard"};
  ReportErrors(procedures[position - 1], [position, seat] {
    const Integer card = ChooseRobotsCard(position, seat);
    RecordInTrick(position, seat, card);
    PlayCard(seat, card);
  });
}

void PlayFirstCard(Integer seat) {
  TakeRobotsTurn(1, seat);
}
void PlaySecondCard(Integer seat) {
  TakeRobotsTurn(2, seat);
}
void PlayThirdCard(Integer seat) {
  TakeRobotsTurn(3, seat);
}
void PlayFourthCard(Integer seat) {
  TakeRobotsTurn(4, seat);
}

}  // namespace Parlino
