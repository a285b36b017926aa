#include "table/window/mirror/TableMirror.h"

#include <algorithm>

#include <QWidget>

#include "table/window/mirror/Glides.h"
#include "table/window/painting/Design.h"

namespace Parlino {

void TableMirror::Link(const Control& control, QWidget* widget, std::function<void()> show,
                       Placing placing) {
  ties_.push_back({&control, widget, std::move(show), placing});
}

void TableMirror::ShowChanges(std::uint32_t now, std::uint32_t pauseMs) {
  for (Tie& tie : ties_)
    if (HasChanged(tie)) ShowControl(tie, {now, pauseMs});
  moveFocus_();
  for (const Tie& tie : ties_)
    if (HasChanged(tie) && !tie.control->Visible) tie.widget->hide();
  BringChangedToFront();
  shown_ = Table.Changes;
}

void TableMirror::ShowControl(Tie& tie, const Pause& pause) {
  tie.show();
  if (tie.placing != Placing::Fixed) ShowPlace(tie, pause);
  if (tie.control->Visible) tie.widget->show();
  if (tie.layer == tie.control->Layer) return;
  tie.layer = tie.control->Layer;
  toFront_.push_back(&tie);
}

// Only a widget that was visible before and still is can be seen moving.
void TableMirror::ShowPlace(const Tie& tie, const Pause& pause) {
  glides_.Cut(tie.widget);
  const QPoint place = ToPixels(tie.control->Place);
  if (place == tie.widget->pos()) return;
  const bool isSeen = tie.control->Visible && !tie.widget->isHidden();
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
