// Play by the keys: takes the focus to where it is needed, and the keys of the bidding panel and of
// the hand to the events that the mouse fires.
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
struct TableWidgets;

class TableKeys : public QObject {
 public:
  // The table with its widgets. The marks are shown while `keyUse` is on.
  TableKeys(QWidget& table, const TableWidgets& widgets, KeyUse& keyUse, PendingEvents& pending);

  // Decides who has the focus, to be called when the table shows a change and before it hides what
  // goes: bidding takes it when it begins, the hand when it would be nowhere, and the card that the
  // keys have reached stays marked while cards go.
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
  [[nodiscard]] bool IsOnWhatGoes() const;
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
  const TableWidgets& widgets_;
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
