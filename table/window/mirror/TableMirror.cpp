#include "table/window/mirror/TableMirror.h"

#include <algorithm>
#include <utility>

#include "table/window/mirror/Glides.h"
#include "table/window/painting/Design.h"

namespace Parlino {

void TableMirror::Link(const Control& control, QWidget* widget, std::function<void()> show,
                       Placing placing) {
  ties_.push_back({&control, widget, std::move(show), placing});
}

void TableMirror::ShowChanges(std::uint32_t now, std::uint32_t pauseMs) {
  const std::vector<Tie*> gathered = FindGathered();
  for (Tie& tie : ties_)
    if (HasChanged(tie) && !std::ranges::count(gathered, &tie)) ShowControl(tie, {now, pauseMs});
  moveFocus_();
  for (Tie& tie : ties_)
    if (HasChanged(tie) && !tie.control->Visible && !std::ranges::count(gathered, &tie))
      tie.widget->hide();
  ShowGathered(gathered, {now, pauseMs});
  BringChangedToFront();
  shown_ = Table.Changes;
}

// When a trick is gathered, the model moves its four cards and hides three of them at once. Drawn,
// they go together to where the fourth goes. The fourth is the last of the result.
std::vector<TableMirror::Tie*> TableMirror::FindGathered() {
  constexpr std::size_t cardsThatGo = 3;
  if (!shown_) return {};
  std::vector<Tie*> gathered;
  Tie* last = nullptr;
  for (Tie& tie : ties_) {
    if (tie.placing != Placing::Glides || !HasChanged(tie) || tie.widget->isHidden() ||
        ToPixels(tie.control->Place) == tie.widget->pos())
      continue;
    if (!tie.control->Visible)
      gathered.push_back(&tie);
    else if (std::exchange(last, &tie) != nullptr)
      return {};
  }
  if (gathered.size() != cardsThatGo || last == nullptr) return {};
  gathered.push_back(last);
  return gathered;
}

void TableMirror::ShowGathered(const std::vector<Tie*>& gathered, const Pause& pause) {
  if (gathered.empty()) return;
  const QPoint goal = ToPixels(gathered.back()->control->Place);
  for (const Tie* tie : gathered) {
    glides_.Cut(tie->widget);
    glides_.BeginAfterRest(tie->widget, goal, pause.begins, pause.lengthMs, tie->show, [tie] {
      if (tie->control->Visible) return;
      tie->widget->hide();
      tie->widget->move(ToPixels(tie->control->Place));
    });
  }
}

void TableMirror::ShowControl(Tie& tie, const Pause& pause) {
  tie.show();
  if (tie.placing != Placing::Fixed) ShowPlace(tie, pause);
  if (tie.control->Visible) Show(tie);
  if (tie.layer == tie.control->Layer) return;
  tie.layer = tie.control->Layer;
  toFront_.push_back(&tie);
}

// While the mouse is grabbed, Qt does not ask the display server for the pointer at each widget
// that comes into view. A pack of cards would wait for 52 answers; RestingPointer asks once for all
// cards.
void TableMirror::Show(const Tie& tie) {
  if (tie.placing != Placing::Glides) return tie.widget->show();
  grabber_.grabMouse();
  tie.widget->show();
  grabber_.releaseMouse();
}

// Only a widget that was visible before and still is can be seen moving; before the first showing
// there is no window.
void TableMirror::ShowPlace(const Tie& tie, const Pause& pause) {
  glides_.Cut(tie.widget);
  const QPoint place = ToPixels(tie.control->Place);
  if (place == tie.widget->pos()) return;
  const bool isSeen = shown_ && tie.control->Visible && !tie.widget->isHidden();
  if (tie.placing == Placing::Glides && isSeen)
    glides_.Begin(tie.widget, place, pause.begins, pause.lengthMs);
  else
    tie.widget->move(place);
}

void TableMirror::BringChangedToFront() {
  if (toFront_.empty()) return;
  std::ranges::sort(toFront_, {}, &Tie::layer);
  for (const Tie* tie : toFront_) tie->widget->raise();
  toFront_.clear();
  for (QWidget* widget : front_) widget->raise();
}

}  // namespace Parlino
