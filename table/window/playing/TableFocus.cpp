#include "table/window/playing/TableFocus.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QEvent>
#include <QPushButton>

#include "engine/state/Questions.h"
#include "table/CardDisplay.h"
#include "table/window/input/KeyUse.h"
#include "table/window/painting/Design.h"
#include "table/window/parts/BidFace.h"
#include "table/window/parts/PictureView.h"
#include "table/window/parts/TableWidgets.h"

namespace Parlino {
namespace {

MarkLook LookOfMark(Integer card) {
  if (PlayerTurn == False) return MarkLook::AtRest;
  return CardsHumanMayPlay().Has(card) ? MarkLook::Pointing : MarkLook::Plain;
}

}  // namespace

TableFocus::TableFocus(QWidget& table, const TableWidgets& widgets, const KeyUse& keyUse)
    : table_(table), widgets_(widgets), keyUse_(keyUse), mark_(&table) {
  QCoreApplication::instance()->installEventFilter(this);
  connect(&keyUse, &KeyUse::Changed, this, &TableFocus::ShowMarks);
}

void TableFocus::Follow() {
  const bool wasBidding = std::exchange(isBidding_, Table.FramBids.Visible);
  hand_.Follow();
  MarkCard();
  if (isBidding_ && !wasBidding) {
    bid_.GoTo(1);
    GoToBid();
  } else if (IsOnHand() || IsOnWhatGoes()) {
    GoToCard();
  }
  ShowMark();
}

bool TableFocus::IsOnBids() const {
  return dynamic_cast<const BidFace*>(Widget()) != nullptr;
}

// Also when no widget has the focus, or a card that is no longer in the hand.
bool TableFocus::IsOnHand() const {
  const QWidget* focus = Widget();
  return focus == nullptr || focus == &table_ || dynamic_cast<const PictureView*>(focus) != nullptr;
}

bool TableFocus::IsOnWhatGoes() const {
  return (!Table.FramBids.Visible && IsOnBids()) ||
         (!Table.CmdDontShow.Visible && Widget() == widgets_.dontShow);
}

bool TableFocus::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
      TakeOver(*watched);
      [[fallthrough]];
    case QEvent::FocusOut:
      ShowMark();
      break;
    case QEvent::Move:
      if (watched == card_) ShowMark();
      break;
    default:
      break;
  }
  return false;
}

// The mouse or an assistive tool may have moved the focus.
void TableFocus::TakeOver(const QObject& focus) {
  if (const auto* view = dynamic_cast<const PictureView*>(&focus)) {
    hand_.GoTo(view->Picture());
    MarkCard();
  } else if (const auto face = std::ranges::find(widgets_.bids, &focus);
             face != widgets_.bids.end()) {
    bid_.GoTo(1 + static_cast<int>(face - widgets_.bids.begin()));
    MarkBid();
  }
}

// The Tab key stops only at the marked number and the marked card.
void TableFocus::MarkBid() {
  if (face_ != nullptr) face_->setFocusPolicy(Qt::ClickFocus);
  face_ = widgets_.bids[bid_.Number()];
  face_->setFocusPolicy(Qt::StrongFocus);
  face_->MarkFocus(keyUse_.IsOn());
}

void TableFocus::GoToBid() {
  MarkBid();
  face_->setFocus();
}

void TableFocus::MarkCard() {
  PictureView* card = hand_.Card() == 0 ? nullptr : widgets_.cards[hand_.Card()];
  if (card == card_) return;
  if (card_ != nullptr) card_->setFocusPolicy(Qt::NoFocus);
  if (card != nullptr) card->setFocusPolicy(Qt::TabFocus);
  card_ = card;
}

void TableFocus::GoToCard() {
  MarkCard();
  QWidget* place = card_ != nullptr ? card_ : &table_;
  if (Widget() != place) place->setFocus();
}

// Frames only the part of the card that the next one leaves uncovered.
void TableFocus::ShowMark() {
  if (card_ == nullptr || !card_->hasFocus() || !keyUse_.IsOn()) return mark_.hide();
  int seenWidth = card_->width();
  const CardSet after = PlayersRow().Between(hand_.Card() + 1, CardsInPack);
  if (!after.IsEmpty()) {
    const TablePoint next = Table.Cds[after.Lowest()].Place;
    seenWidth = std::min(seenWidth, ToPixels(next.Left - Table.Cds[hand_.Card()].Place.Left));
  }
  mark_.Frame(card_->geometry(), seenWidth, LookOfMark(hand_.Card()));
  mark_.show();
}

void TableFocus::ShowMarks() {
  ShowMark();
  if (face_ != nullptr) face_->MarkFocus(keyUse_.IsOn());
}

}  // namespace Parlino
