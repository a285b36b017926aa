// The list of the cards played, which always scrolls to its newest line.
#pragma once

#include <QListView>

#include "table/TableView.h"

namespace Parlino {

class PlayedLines;

class PlayedList : public QListView {
 public:
  explicit PlayedList(QWidget* parent);

  void ShowModel(const ListBox& list);

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  PlayedLines* lines_;
};

}  // namespace Parlino
