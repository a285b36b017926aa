// Takes the keys of the bidding panel and of the hand to the events that the mouse fires.
#pragma once

#include <QObject>

#include "table/window/playing/TableFocus.h"

class QKeyEvent;

namespace Parlino {

class PendingEvents;

class TableKeys : public QObject {
 public:
  TableKeys(QWidget& table, TableFocus& focus, KeyUse& keyUse, PendingEvents& pending);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Press(const QObject& watched, const QKeyEvent& key);
  void NoteKey(const QKeyEvent& key);
  [[nodiscard]] bool UsesMark(const QKeyEvent& key) const;
  [[nodiscard]] bool OnlyShowsMark(const QKeyEvent& key) const;
  bool TakeKey(const QKeyEvent& key);
  bool TakeDigit(const QKeyEvent& key);
  bool TakeBidKey(const QKeyEvent& key);
  bool TakeHandKey(const QKeyEvent& key);
  bool GoToSomeCard(const QKeyEvent& key);
  void PlayMarkedCard(const QKeyEvent& key);

  QWidget& table_;
  TableFocus& focus_;
  KeyUse& keyUse_;
  PendingEvents& pending_;
  bool wasUnmarked_ = true;  // when the last key was pressed
};

}  // namespace Parlino
