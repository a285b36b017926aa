#include "table/window/TableKeys.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>

#include "engine/state/Questions.h"
#include "platform/Platform.h"
#include "table/CardDisplay.h"
#include "table/TableEvents.h"
#include "table/window/BidFace.h"
#include "table/window/Design.h"
#include "table/window/Keys.h"
#include "table/window/PendingEvents.h"
#include "table/window/PictureView.h"
#include "table/window/TableParts.h"

namespace Parlino {
namespace {

QWidget* FindMember(const QWidget& table, const char* array, int index) {
  return table.findChild<QWidget*>(MemberName(array, index));
}

bool IsModifier(const QKeyEvent& key) {
  return key.key() >= Qt::Key_Shift && key.key() <= Qt::Key_ScrollLock;
}

// A key together with others is a command, but for Shift, which some keyboards need for digits.
bool IsPlain(const QKeyEvent& key) {
  return (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
}

std::optional<int> DigitOf(const QKeyEvent& key) {
  if (key.text().size() != 1 || !key.text().front().isDigit()) return std::nullopt;
  return key.text().front().digitValue();
}

std::optional<Integer> SuitOf(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_D:
      return Diamonds;
    case Qt::Key_C:
      return Clubs;
    case Qt::Key_H:
      return Hearts;
    case Qt::Key_S:
      return Spades;
    default:
      return std::nullopt;
  }
}

// The keys that always lead the same way.
template <class Walk>
struct Way {
  Qt::Key key;
  void (Walk::*go)();
};

constexpr Way<BidWalk> BidWays[] = {
    {Qt::Key_Left, &BidWalk::GoLeft},    {Qt::Key_Right, &BidWalk::GoRight},
    {Qt::Key_Up, &BidWalk::GoUp},        {Qt::Key_Down, &BidWalk::GoDown},
    {Qt::Key_Home, &BidWalk::GoToFirst}, {Qt::Key_End, &BidWalk::GoToLast}};
constexpr Way<HandWalk> HandWays[] = {{Qt::Key_Left, &HandWalk::GoLeft},
                                      {Qt::Key_Right, &HandWalk::GoRight},
                                      {Qt::Key_Home, &HandWalk::GoToFirst},
                                      {Qt::Key_End, &HandWalk::GoToLast}};

template <class Walk, std::size_t count>
bool Go(Walk& walk, const Way<Walk> (&ways)[count], const QKeyEvent& key) {
  const auto* way = std::ranges::find(ways, key.key(), &Way<Walk>::key);
  if (way == std::end(ways)) return false;
  (walk.*way->go)();
  return true;
}

}  // namespace

TableKeys::TableKeys(QWidget& table, PendingEvents& pending)
    : table_(table), pending_(pending), mark_(&table) {
  QCoreApplication::instance()->installEventFilter(this);
}

void TableKeys::LeaveBidding() {
  if (isBidding_ && !Table.FramBids.Visible && face_->hasFocus()) GoToCard();
}

void TableKeys::Follow() {
  const bool wasBidding = std::exchange(isBidding_, Table.FramBids.Visible);
  hand_.Follow();
  MarkCard();
  if (isBidding_ && !wasBidding) {
    bid_.GoTo(1);
    GoToBid();
  } else if (IsOnHand()) {
    GoToCard();
  }
  ShowMark();
}

// Also on the table itself, or on a card that no longer is in the hand.
bool TableKeys::IsOnHand() const {
  const QWidget* focus = table_.window()->focusWidget();
  return focus == nullptr || focus == &table_ || dynamic_cast<const PictureView*>(focus) != nullptr;
}

bool TableKeys::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      NoteUse(false);
      break;
    case QEvent::ShortcutOverride:  // comes before every key, and goes on to the parents
      if (watched == table_.window()->focusWidget()) NoteKey(static_cast<QKeyEvent&>(*event));
      break;
    case QEvent::KeyPress:
      if (watched == &table_ || watched == card_) return TakeKey(static_cast<QKeyEvent&>(*event));
      if (watched == face_) return OnlyShowsMark(static_cast<QKeyEvent&>(*event));
      break;
    case QEvent::FocusIn:
      FollowFocus(*watched);
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
void TableKeys::FollowFocus(const QObject& focus) {
  if (const auto* view = dynamic_cast<const PictureView*>(&focus)) {
    hand_.GoTo(view->Picture());
    MarkCard();
  } else if (const auto* face = dynamic_cast<const BidFace*>(&focus)) {
    bid_.GoTo(face->text().toInt());
    MarkBid();
  }
}

void TableKeys::NoteKey(const QKeyEvent& key) {
  if (IsModifier(key)) return;
  wasUnmarked_ = !keysAreUsed_;
  NoteUse(true);
}

// Nobody bids or plays what was not marked: neither can be taken back.
bool TableKeys::OnlyShowsMark(const QKeyEvent& key) const {
  return wasUnmarked_ && (IsEnter(key) || key.key() == Qt::Key_Space);
}

// The mark is for whoever plays by the keys.
void TableKeys::NoteUse(bool ofKeys) {
  keysAreUsed_ = ofKeys;
  ShowMark();
  if (face_ != nullptr) face_->MarkFocus(ofKeys);
}

bool TableKeys::TakeKey(const QKeyEvent& key) {
  if (!IsPlain(key)) return false;
  QWidget* focus = table_.window()->focusWidget();
  if (auto* button = dynamic_cast<QPushButton*>(focus); button != nullptr && IsEnter(key)) {
    button->click();
    return true;
  }
  const bool isOnBids = dynamic_cast<BidFace*>(focus) != nullptr;
  if (isBidding_ && (isOnBids || IsOnHand()) && TakeDigit(key)) return true;
  return (isOnBids && TakeBidKey(key)) || (IsOnHand() && TakeHandKey(key));
}

bool TableKeys::TakeDigit(const QKeyEvent& key) {
  const auto digit = DigitOf(key);
  if (!digit) return false;
  bid_.Type(*digit, ThePlatform().Ticks());
  GoToBid();
  return true;
}

bool TableKeys::TakeBidKey(const QKeyEvent& key) {
  if (!Go(bid_, BidWays, key)) return false;
  GoToBid();
  return true;
}

bool TableKeys::TakeHandKey(const QKeyEvent& key) {
  if (IsEnter(key) || key.key() == Qt::Key_Space) {
    PlayMarkedCard(key);
    return true;
  }
  if (!Go(hand_, HandWays, key) && !GoToSomeCard(key)) return false;
  GoToCard();
  return true;
}

bool TableKeys::GoToSomeCard(const QKeyEvent& key) {
  const CardSet playable = CardsHumanMayPlay();
  if (key.key() == Qt::Key_Tab) return hand_.GoToNext(playable);
  if (key.key() == Qt::Key_Up) {
    hand_.GoToNext(playable);
  } else if (key.key() == Qt::Key_Down) {
    hand_.GoToOneBefore(playable);
  } else {
    const auto suit = SuitOf(key);
    if (!suit) return false;
    hand_.GoToNextOfSuit(*suit);
  }
  return true;
}

// A key held down plays no second card.
void TableKeys::PlayMarkedCard(const QKeyEvent& key) {
  if (card_ == nullptr || key.isAutoRepeat() || OnlyShowsMark(key)) return;
  pending_.Append({ClickCard, hand_.Card()});
}

// Only the marked one of the numbers, and of the cards, is a stop of the Tab key.
void TableKeys::MarkBid() {
  if (face_ != nullptr) face_->setFocusPolicy(Qt::ClickFocus);
  face_ = &dynamic_cast<BidFace&>(*FindMember(table_, "LblBids", bid_.Number()));
  face_->setFocusPolicy(Qt::StrongFocus);
  face_->MarkFocus(keysAreUsed_);
}

void TableKeys::GoToBid() {
  MarkBid();
  face_->setFocus();
}

void TableKeys::MarkCard() {
  QWidget* card = hand_.Card() == 0 ? nullptr : FindMember(table_, "Cds", hand_.Card());
  if (card == card_) return;
  if (card_ != nullptr) card_->setFocusPolicy(Qt::NoFocus);
  if (card != nullptr) card->setFocusPolicy(Qt::TabFocus);
  card_ = card;
}

void TableKeys::GoToCard() {
  MarkCard();
  QWidget* place = card_ != nullptr ? card_ : &table_;
  if (table_.window()->focusWidget() != place) place->setFocus();
}

void TableKeys::ShowMark() {
  if (card_ == nullptr || !card_->hasFocus() || !keysAreUsed_) return mark_.hide();
  int seenWidth = card_->width();
  const CardSet after = PlayersRow().Between(hand_.Card() + 1, CardsInPack);
  if (!after.IsEmpty()) {
    const TablePoint next = Table.Cds[after.Lowest()].Place;
    seenWidth = std::min(seenWidth, ToPixels(next.Left - Table.Cds[hand_.Card()].Place.Left));
  }
  mark_.Frame(card_->geometry(), seenWidth, CardsHumanMayPlay().Has(hand_.Card()));
  mark_.show();
}

}  // namespace Parlino
