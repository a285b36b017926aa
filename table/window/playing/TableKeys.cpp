#include "table/window/playing/TableKeys.h"

#include <algorithm>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>

#include "engine/state/Questions.h"
#include "platform/Platform.h"
#include "table/TableEvents.h"
#include "table/window/input/KeyUse.h"
#include "table/window/input/Keys.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/parts/BidFace.h"
#include "table/window/parts/PictureView.h"

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

TableKeys::TableKeys(QWidget& table, TableFocus& focus, KeyUse& keyUse, PendingEvents& pending)
    : table_(table), focus_(focus), keyUse_(keyUse), pending_(pending) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool TableKeys::eventFilter(QObject* watched, QEvent* event) {
  return event->type() == QEvent::KeyPress && Press(*watched, static_cast<QKeyEvent&>(*event));
}

// Qt offers a key to the widget that has the focus and then to each of its parents.
bool TableKeys::Press(const QObject& watched, const QKeyEvent& key) {
  if (&watched == focus_.Widget()) NoteKey(key);
  if (&watched == &table_ || &watched == focus_.Card()) return TakeKey(key);
  return &watched == focus_.Face() && OnlyShowsMark(key);
}

void TableKeys::NoteKey(const QKeyEvent& key) {
  wasUnmarked_ = !keyUse_.IsOn();
  if (UsesMark(key)) keyUse_.Begin();
}

// Whether the key moves the mark or uses it, where the focus is. Players who use the mouse press
// the other keys, too.
bool TableKeys::UsesMark(const QKeyEvent& key) const {
  const QWidget* focus = focus_.Widget();
  if (!IsPlain(key) || (focus != &table_ && !table_.isAncestorOf(focus))) return false;
  if (IsTab(key)) return true;
  if (!focus_.IsOnBids() && !focus_.IsOnHand()) return false;
  if (IsEnterOrSpace(key)) return !key.isAutoRepeat();
  if (focus_.IsBidding() && DigitOf(key)) return true;
  return focus_.IsOnBids() ? FindWay(BidWays, key) != nullptr
                           : FindWay(HandWays, key) != nullptr || GoesToSomeCard(key);
}

// A bid or a card cannot be taken back, so the first Enter or Space only shows what it would take.
bool TableKeys::OnlyShowsMark(const QKeyEvent& key) const {
  return wasUnmarked_ && IsEnterOrSpace(key);
}

bool TableKeys::TakeKey(const QKeyEvent& key) {
  if (!IsPlain(key)) return false;
  if (auto* button = dynamic_cast<QPushButton*>(focus_.Widget());
      button != nullptr && IsEnter(key)) {
    if (!key.isAutoRepeat()) button->click();
    return true;
  }
  const bool isOnBids = focus_.IsOnBids();
  const bool isOnHand = focus_.IsOnHand();
  if (focus_.IsBidding() && (isOnBids || isOnHand) && TakeDigit(key)) return true;
  return (isOnBids && TakeBidKey(key)) || (isOnHand && TakeHandKey(key));
}

bool TableKeys::TakeDigit(const QKeyEvent& key) {
  const auto digit = DigitOf(key);
  if (!digit) return false;
  focus_.Bid().Type(*digit, ThePlatform().Ticks());
  focus_.GoToBid();
  return true;
}

bool TableKeys::TakeBidKey(const QKeyEvent& key) {
  if (!Go(focus_.Bid(), BidWays, key)) return false;
  focus_.GoToBid();
  return true;
}

bool TableKeys::TakeHandKey(const QKeyEvent& key) {
  if (IsEnterOrSpace(key)) {
    PlayMarkedCard(key);
    return true;
  }
  if (!Go(focus_.Hand(), HandWays, key) && !GoToSomeCard(key)) return false;
  focus_.GoToCard();
  return true;
}

bool TableKeys::GoToSomeCard(const QKeyEvent& key) {
  HandWalk& hand = focus_.Hand();
  const CardSet playable = CardsHumanMayPlay();
  if (key.key() == Qt::Key_Tab) return hand.GoToNext(playable);
  if (key.key() == Qt::Key_Up) {
    hand.GoToNext(playable);
  } else if (key.key() == Qt::Key_Down) {
    hand.GoToOneBefore(playable);
  } else {
    const auto suit = SuitOf(key);
    if (!suit) return false;
    hand.GoToNextOfSuit(*suit);
  }
  return true;
}

// A key held down plays no second card.
void TableKeys::PlayMarkedCard(const QKeyEvent& key) {
  if (focus_.Card() == nullptr || key.isAutoRepeat() || OnlyShowsMark(key)) return;
  pending_.Append({ClickCard, focus_.Hand().Card()});
}

}  // namespace Parlino
