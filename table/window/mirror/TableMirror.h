// Puts what has changed in the table model into the widgets that show it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <QWidget>

#include "table/TableView.h"

namespace Parlino {

class Glides;

// Whether the widget stands at the control's place in the model, and how it gets there.
enum class Placing { Fixed, Jumps, Glides };

class TableMirror {
 public:
  // `moveFocus` is called at every showing, after widgets have been shown and before any are
  // hidden: a widget that has the focus can then give it away before Qt takes it.
  TableMirror(Glides& glides, std::function<void()> moveFocus)
      : glides_(glides), moveFocus_(std::move(moveFocus)) {}

  // Ties a widget to its control. `show` puts the control's own properties into it; the mirror
  // itself takes care of visibility, place and layer. Widgets start in the order of their creation,
  // the first at the back.
  void Link(
      const Control& control, QWidget* widget, std::function<void()> show = [] {},
      Placing placing = Placing::Fixed);

  // Keeps the widget in front of all others, except those for which this is called later.
  void KeepInFront(QWidget* widget) { front_.push_back(widget); }

  // Shows every control that has changed since the last call. `now` is a tick of the platform, and
  // `pauseMs` says how long the game is about to pause, and so how long a card may take.
  void ShowChanges(std::uint32_t now, std::uint32_t pauseMs);

 private:
  struct Tie {
    const Control* control;
    QWidget* widget;
    std::function<void()> show;
    Placing placing;
    std::uint32_t layer = 0;  // as shown
  };

  struct Pause {
    std::uint32_t begins;
    std::uint32_t lengthMs;
  };

  // Since the last showing.
  [[nodiscard]] bool HasChanged(const Tie& tie) const {
    return !shown_ || tie.control->Changed > *shown_;
  }
  [[nodiscard]] std::vector<Tie*> FindGathered();
  void ShowGathered(const std::vector<Tie*>& gathered, const Pause& pause);
  void ShowControl(Tie& tie, const Pause& pause);
  void Show(const Tie& tie);
  void ShowPlace(const Tie& tie, const Pause& pause);
  void BringChangedToFront();

  Glides& glides_;
  std::function<void()> moveFocus_;
  QWidget grabber_;  // never shown
  std::vector<Tie> ties_;
  std::vector<Tie*> toFront_;
  std::vector<QWidget*> front_;
  std::optional<std::uint64_t> shown_;
};

}  // namespace Parlino
