// Play by the keys: takes the focus to where it is needed, and the keys of the bidding panel and of
// the hand to the events that the mouse raises.
#pragma once

#include <QObject>

#include "table/BidWalk.h"
#include "table/HandWalk.h"
#include "table/window/painting/FocusMark.h"

class QKeyEvent;

namespace Parlino {

class BidFace;
class KeyUse;
class PendingEvents;

class TableKeys : public QObject {
 public:
  // The table with all its parts. The marks are shown while `keyUse` is on.
  TableKeys(QWidget& table, KeyUse& keyUse, PendingEvents& pending);

  // To be called before the table shows a change: the focus leaves a bidding panel that goes, so
  // that no tool reads where it would fall.
  void LeaveBidding();

  // To be called when the table shows it: bidding takes the focus when it begins, the hand gets it
  // when it would be nowhere, and the card that the keys have reached stays marked while cards go.
  void Follow();

  // The mark, which lies in front of the cards.
  QWidget* Mark() { return &mark_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowFocus(const QObject& focus);
  bool Press(const QObject& watched, const QKeyEvent& key);
  void NoteKey(const QKeyEvent& key);
  [[nodiscard]] bool UsesMark(const QKeyEvent& key) const;
  [[nodiscard]] bool OnlyShowsMark(const QKeyEvent& key) const;
  [[nodiscard]] bool IsOnHand() const;
  bool TakeKey(const QKeyEvent& key);
  bool TakeDigit(const QKeyEvent& key);
  bool TakeBidKey(const QKeyEvent& key);
  bool TakeHandKey(const QKeyEvent& key);
  bool GoToSomeCard(const QKeyEvent& key);
  void PlayMarkedCard(const QKeyEvent& key);
  void MarkBid();
  void GoToBid();
  void MarkCard();
  void GoToCard();
  void ShowMark();
  void ShowMarks();

  QWidget& table_;
  KeyUse& keyUse_;
  PendingEvents& pending_;
  FocusMark mark_;
  HandWalk hand_;
  BidWalk bid_;
  QWidget* card_ = nullptr;  // shows the card that the keys have reached
  BidFace* face_ = nullptr;  // and the number
  bool isBidding_ = false;
  bool wasUnmarked_ = true;  // when the last key was pressed
};

}  // namespace Parlino
