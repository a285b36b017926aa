#include "table/window/pointing/TableKeys.h"

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
#include "table/window/input/KeyUse.h"
#include "table/window/input/Keys.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/painting/Design.h"
#include "table/window/parts/BidFace.h"
#include "table/window/parts/PictureView.h"
#include "table/window/parts/TableWidgets.h"

namespace Parlino {
namespace {

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
const Way<Walk>* FindWay(const Way<Walk> (&ways)[count], const QKeyEvent& key) {
  const auto* way = std::ranges::find(ways, key.key(), &Way<Walk>::key);
  return way == std::end(ways) ? nullptr : way;
}

template <class Walk, std::size_t count>
bool Go(Walk& walk, const Way<Walk> (&ways)[count], const QKeyEvent& key) {
  const Way<Walk>* way = FindWay(ways, key);
  if (way != nullptr) (walk.*way->go)();
  return way != nullptr;
}

// Those whose way depends on what may be played, or on what else is in the hand.
bool GoesToSomeCard(const QKeyEvent& key) {
  return key.key() == Qt::Key_Up || key.key() == Qt::Key_Down || SuitOf(key).has_value();
}

}  // namespace

TableKeys::TableKeys(QWidget& table, const TableWidgets& widgets, KeyUse& keyUse,
                     PendingEvents& pending)
    : table_(table), widgets_(widgets), keyUse_(keyUse), pending_(pending), mark_(&table) {
  QCoreApplication::instance()->installEventFilter(this);
  connect(&keyUse, &KeyUse::Changed, this, &TableKeys::ShowMarks);
}

void TableKeys::Follow() {
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

// Also on the table itself, or on a card that no longer is in the hand.
bool TableKeys::IsOnHand() const {
  const QWidget* focus = table_.window()->focusWidget();
  return focus == nullptr || focus == &table_ || dynamic_cast<const PictureView*>(focus) != nullptr;
}

bool TableKeys::IsOnWhatGoes() const {
  const QWidget* focus = table_.window()->focusWidget();
  return (!Table.FramBids.Visible && dynamic_cast<const BidFace*>(focus) != nullptr) ||
         (!Table.CmdDontShow.Visible && focus == widgets_.dontShow);
}

bool TableKeys::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return Press(*watched, static_cast<QKeyEvent&>(*event));
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

// A key comes to what has the focus first, and goes on to the parents.
bool TableKeys::Press(const QObject& watched, const QKeyEvent& key) {
  if (&watched == table_.window()->focusWidget()) NoteKey(key);
  if (&watched == &table_ || &watched == card_) return TakeKey(key);
  return &watched == face_ && OnlyShowsMark(key);
}

void TableKeys::NoteKey(const QKeyEvent& key) {
  wasUnmarked_ = !keyUse_.IsOn();
  if (UsesMark(key)) keyUse_.Begin();
}

// Whether the key moves the mark or uses it, where the focus is. All others are pressed by who
// plays by mouse, too.
bool TableKeys::UsesMark(const QKeyEvent& key) const {
  const QWidget* focus = table_.window()->focusWidget();
  if (!IsPlain(key) || (focus != &table_ && !table_.isAncestorOf(focus))) return false;
  if (IsTab(key)) return true;
  const bool isOnBids = dynamic_cast<const BidFace*>(focus) != nullptr;
  if (!isOnBids && !IsOnHand()) return false;
  if (IsEnterOrSpace(key)) return !key.isAutoRepeat();
  if (isBidding_ && DigitOf(key)) return true;
  return isOnBids ? FindWay(BidWays, key) != nullptr
                  : FindWay(HandWays, key) != nullptr || GoesToSomeCard(key);
}

// Nobody bids or plays what was not marked: neither can be taken back.
bool TableKeys::OnlyShowsMark(const QKeyEvent& key) const {
  return wasUnmarked_ && IsEnterOrSpace(key);
}

bool TableKeys::TakeKey(const QKeyEvent& key) {
  if (!IsPlain(key)) return false;
  QWidget* focus = table_.window()->focusWidget();
  if (auto* button = dynamic_cast<QPushButton*>(focus); button != nullptr && IsEnter(key)) {
    if (!key.isAutoRepeat()) button->click();
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
  if (IsEnterOrSpace(key)) {
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
  face_ = widgets_.bids[bid_.Number()];
  face_->setFocusPolicy(Qt::StrongFocus);
  face_->MarkFocus(keyUse_.IsOn());
}

void TableKeys::GoToBid() {
  MarkBid();
  face_->setFocus();
}

void TableKeys::MarkCard() {
  QWidget* card = hand_.Card() == 0 ? nullptr : widgets_.cards[hand_.Card()];
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
  if (card_ == nullptr || !card_->hasFocus() || !keyUse_.IsOn()) return mark_.hide();
  int seenWidth = card_->width();
  const CardSet after = PlayersRow().Between(hand_.Card() + 1, CardsInPack);
  if (!after.IsEmpty()) {
    const TablePoint next = Table.Cds[after.Lowest()].Place;
    seenWidth = std::min(seenWidth, ToPixels(next.Left - Table.Cds[hand_.Card()].Place.Left));
  }
  mark_.Frame(card_->geometry(), seenWidth, CardsHumanMayPlay().Has(hand_.Card()));
  mark_.show();
}

void TableKeys::ShowMarks() {
  ShowMark();
  if (face_ != nullptr) face_->MarkFocus(keyUse_.IsOn());
}

}  // namespace Parlino
