#include "table/CardDisplay.h"

#include "engine/state/ErrorReport.h"
#include "platform/Platform.h"
#include "table/SeatControls.h"

namespace Parlino {
namespace {

// Where a seat's hand begins, how far the next card stands from it, and what its cards show.
struct HandLayout {
  TablePoint first;
  TablePoint step;
  Integer picture;  // 0 for each card's own face
};

constexpr HandLayout HandLayouts[SeatsAtTable] = {
    {{2280, 6600}, {400, 0}, 0},
    {{1300, 2700}, {0, 175}, PictureBackSideways},
    {{3840, 1080}, {175, 0}, PictureBackUpright},
    {{8550, 2700}, {0, 175}, PictureBackSideways},
};

constexpr TablePoint MiddlePlaces[SeatsAtTable] = {
    {5040, 4920}, {3000, 3720}, {5040, 2880}, {7080, 3720}};

struct Path {
  TablePoint first;
  TablePoint second;
};

constexpr Path DealPaths[SeatsAtTable] = {
    {{4400, 4400}, {3840.57, 4400}},
    {{3720, 3840}, {2400, 3240}},
    {{4560, 3000}, {3840, 1920}},
    {{6240, 3480}, {8520, 2900}},
};

constexpr Path TrickPaths[SeatsAtTable] = {
    {{5520, 5400}, {5640, 6960}},
    {{3360, 3720}, {1320, 3720}},
    {{5520, 2040}, {5520, 600}},
    {{8040, 3480}, {10080, 3360}},
};

constexpr TablePoint GatheredTrick{5160, 3780};
constexpr Integer TrickPauseMs = 500;

TablePoint PackPlace(int card) {
  return {5040.0 + 2 * (card - 1), 3720.0 - 2 * (card - 1)};
}

void LayDown(Integer card, const HandLayout& layout, TablePoint& place) {
  SetPictureAt(Table.Cds[card], layout.picture == 0 ? card : layout.picture, place);
  place.Left += layout.step.Left;
  place.Top += layout.step.Top;
}

void LayOutHand(Integer seat) {
  const HandLayout layout = HandLayouts[seat];
  TablePoint place = layout.first;
  for (const Integer card : HandOf(seat)) LayDown(card, layout, place);
}

// Goes through the pack once for all four.
void LayOutAllHands() {
  Indexed<TablePoint, Player, East> places;
  for (int seat = Player; seat <= East; ++seat) places[seat] = HandLayouts[seat].first;
  for (const Integer card : CardsInHands()) {
    const Integer seat = Pack[card].Owner;
    LayDown(card, HandLayouts[seat], places[seat]);
  }
}

// Time is measured as elapsed ticks, which stay correct when the counter wraps. The length is read
// once, because a handler that runs inside the pause may set PauseMs for a pause of its own.
void PauseFor(Integer lengthMs) {
  const std::uint32_t start = ThePlatform().Ticks();
  PauseStartTicks = static_cast<std::int32_t>(start);
  const auto length = static_cast<std::uint32_t>(lengthMs > 0 ? lengthMs : 0);
  for (std::uint32_t elapsed = 0; elapsed < length; elapsed = ThePlatform().Ticks() - start)
    ThePlatform().ProcessEvents(length - elapsed);
}

void SlideToWinner(Integer card, Integer winner) {
  PictureBox& picture = Table.Cds[card];
  MoveTo(picture, TrickPaths[winner].first);
  WaitMs();
  MoveTo(picture, TrickPaths[winner].second);
  PlayCardSound();
  Control& pileCard = (*PileOf[winner])[TricksWon[winner]];
  Show(pileCard);
  BringToFront(pileCard);
}

}  // namespace

void PlacePackDeal() {
  ReportErrors("PlacePackDeal", [] {
    for (int card = 1; card <= CardsInPack; ++card) {
      Pack[card].Owner = NoSeat;
      PictureBox& picture = Table.Cds[card];
      SetPictureAt(picture, PictureBackUpright, PackPlace(card));
      BringToFront(picture);
      Show(picture);
    }
  });
}

void ShowPlayerHand() {
  LayOutHand(Player);
}
void ShowWestHand() {
  LayOutHand(West);
}
void ShowNorthHand() {
  LayOutHand(North);
}
void ShowEastHand() {
  LayOutHand(East);
}

CardSet PlayersRow() {
  const double top = HandLayouts[Player].first.Top;
  return CardSet::OfPack(
      [top](int card) { return Pack[card].Owner == Player && Table.Cds[card].Place.Top == top; });
}

TablePoint PlaceInMiddle(Integer seat) {
  return MiddlePlaces[seat];
}

Integer SeatBehindCard(Integer card) {
  for (Integer seat = Player; seat <= East; ++seat)
    if (Table.Cds[card].Place == MiddlePlaces[seat]) return seat;
  return NoSeat;
}

void MoveDealtCard(Integer card, Integer seat) {
  MoveTo(Table.Cds[card], DealPaths[seat].first);
  WaitMs();
  MoveTo(Table.Cds[card], DealPaths[seat].second);
}

void MoveToMiddle(Integer card, Integer seat) {
  MoveTo(Table.Cds[card], MiddlePlaces[seat]);
}

void JustMoveCardsOut(Integer winner) {
  ReportErrors("JustMoveCardsOut", [winner] {
    for (const Integer card : TrickCards) SetPicture(Table.Cds[card], PictureBackSideways);
    PauseMs = TrickPauseMs;
    for (const Integer card : TrickCards) MoveTo(Table.Cds[card], GatheredTrick);
    for (const Integer card : TrickCards) Pack[card].Owner = NoSeat;
    for (int position = 1; position <= 3; ++position) Hide(Table.Cds[TrickCards[position]]);
    const Integer lastCard = TrickCards[4];
    if (winner >= Player && winner <= East) SlideToWinner(lastCard, winner);
    Hide(Table.Cds[lastCard]);
    LayOutAllHands();
    PauseMs = DefaultPauseMs;
  });
}

void WaitMs() {
  PauseFor(PauseMs);
}

void PlayCardSound() {
  StartSound(CardSound);
  PauseFor(PauseMs);
}

void ShowInfoNote(Pieces text, Integer ms) {
  PauseMs = ms;
  Show(Table.LblInfo);
  BringToFront(Table.LblInfo);
  SetCaption(Table.LblInfo, text);
  WaitMs();
  Hide(Table.LblInfo);
}

void StartSound(std::string_view fileName) {
  ThePlatform().StartSound(fileName);
}

void WaitForEvents() {
  ThePlatform().ProcessEvents(Forever);
}

}  // namespace Parlino
