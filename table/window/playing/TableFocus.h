// Decides where the keyboard focus is: on a number of the bidding panel, on a card of the hand or
// on the table. The card or number that it has reached is the marked one.
#pragma once

#include <QObject>

#include "table/BidWalk.h"
#include "table/HandWalk.h"
#include "table/window/painting/FocusMark.h"

namespace Parlino {

class BidFace;
class KeyUse;
class PictureView;
struct TableWidgets;

class TableFocus : public QObject {
 public:
  // The table with its widgets. The marks are visible while `keyUse` is on.
  TableFocus(QWidget& table, const TableWidgets& widgets, const KeyUse& keyUse);

  // To be called when the table shows a change, before it hides anything: bidding takes the focus
  // when it begins, and the hand takes it from a widget that is about to be hidden. When the marked
  // card has been played, another becomes the marked one.
  void Follow();

  // The widget that has the focus in the table's window, or none.
  [[nodiscard]] QWidget* Widget() const { return table_.window()->focusWidget(); }
  [[nodiscard]] bool IsOnBids() const;
  // On a card, or on the table itself, where the keys of the hand work too.
  [[nodiscard]] bool IsOnHand() const;
  [[nodiscard]] bool IsBidding() const { return isBidding_; }

  // The way through the hand and through the panel. After a step the focus must be moved there.
  HandWalk& Hand() { return hand_; }
  BidWalk& Bid() { return bid_; }
  void GoToCard();
  void GoToBid();

  // The widgets of the marked card and number; none before the first.
  [[nodiscard]] const PictureView* Card() const { return card_; }
  [[nodiscard]] const BidFace* Face() const { return face_; }

  // The frame around the marked card, which lies in front of the cards.
  QWidget* Mark() { return &mark_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeOver(const QObject& focus);
  [[nodiscard]] bool IsOnWhatGoes() const;
  void MarkCard();
  void MarkBid();
  void ShowMark();
  void ShowMarks();

  QWidget& table_;
  const TableWidgets& widgets_;
  const KeyUse& keyUse_;
  FocusMark mark_;
  HandWalk hand_;
  BidWalk bid_;
  PictureView* card_ = nullptr;
  BidFace* face_ = nullptr;
  bool isBidding_ = false;
};

}  // namespace Parlino
