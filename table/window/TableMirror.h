// Puts what has changed in the table model into the widgets that show it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "table/TableView.h"

class QWidget;

namespace Parlino {

enum class Placing { Fixed, Follows };  // whether the control's place in the model is the widget's

class TableMirror {
 public:
  // Ties a widget to its control. `show` puts the control's own properties into it; being visible,
  // place and layer are the mirror's. Widgets start in the order of their creation, the first at
  // the back.
  void Link(
      const Control& control, QWidget* widget, std::function<void()> show = [] {},
      Placing placing = Placing::Fixed);

  // Keeps the widget in front of all that is brought to the front after it.
  void KeepInFront(QWidget* widget) { front_ = widget; }

  // Shows every control that has changed since the last call.
  void ShowChanges();

 private:
  struct Tie {
    const Control* control;
    QWidget* widget;
    std::function<void()> show;
    Placing placing;
    std::uint32_t layer = 0;  // as shown
  };

  void ShowControl(Tie& tie);
  void RaiseChanged();

  std::vector<Tie> ties_;
  std::vector<Tie*> toRaise_;
  QWidget* front_ = nullptr;
  std::optional<std::uint64_t> shown_;
};

}  // namespace Parlino
