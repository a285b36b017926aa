#include "engine/TrickPlay.h"

#include "table/CardDisplay.h"
#include "table/ErrorReport.h"

namespace Parlino {
namespace {

constexpr Integer NoteMs = 500;

bool HoldsLedSuit(Integer seat) {
  return !HandOf(seat, LedSuit).IsEmpty();
}

// Set while the follow-suit note is up: further wrong clicks add nothing to it, and so cannot pile
// up note inside note.
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

void PutCardOnTable(Integer seat, Integer card, const std::string& name) {
  MoveToMiddle(card, seat);
  PlayCardSound();
  Pack[card].Owner = NoSeat;
  AddLine(Table.LstCardsPlayed, {name, " played ", Pack[card].FullName});
}

void PlayHumansCard(Integer card) {
  PlayerTurn = False;  // the pause below still lets clicks in: this card is the one of the turn
  RecordInTrick(HumansPosition(), card);
  PutCardOnTable(Player, card, PlayerName);
  PlayerHasPlayed = True;
}

}  // namespace

int HumansPosition() {
  return (SeatsAtTable - Leader) % SeatsAtTable + 1;
}

void RecordInTrick(int position, Integer card) {
  TrickCards[position] = card;
  TrickSuits[position] = Pack[card].Suit;
}

bool MayPlayCard(Integer seat, Integer card, int position) {
  if (Pack[card].Owner != seat) return false;
  return position == 1 || Pack[card].Suit == LedSuit || !HoldsLedSuit(seat);
}

CardSet CardsHumanMayPlay() {
  if (PlayerTurn == False) return {};
  return CardSet::OfPack([position = HumansPosition()](int card) {
    return MayPlayCard(Player, static_cast<Integer>(card), position);
  });
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
    const int position = HumansPosition();
    // Asked for what it leaves behind: whoever cannot follow suit gets the ordinary pause.
    if (position > 1) HasStartSuitQuery(Player);
    if (MayPlayCard(Player, card, position))
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
    PutCardOnTable(seat, card, SeatNames[seat]);
    PauseMs = DefaultPauseMs;
  });
}

bool HasStartSuitQuery(Integer seat) {
  return ReportErrors("HasStartSuitQuery", [seat] {
    if (HoldsLedSuit(seat)) return true;
    PauseMs = DefaultPauseMs;
    return false;
  });
}

bool CardGoneQuery(Integer value, Integer suit) {
  return ReportErrors("CardGoneQuery", [value, suit] { return HoldsCard(NoSeat, value, suit); });
}

}  // namespace Parlino
