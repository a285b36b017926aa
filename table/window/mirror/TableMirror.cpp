#include "table/window/mirror/TableMirror.h"

#include <algorithm>

#include <QWidget>

#include "table/window/mirror/Glides.h"
#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

// The focus goes back to the table, not to whatever comes next in the order of the Tab key.
void HideWidget(QWidget* widget) {
  const QWidget* focus = widget->window()->focusWidget();
  if (focus != nullptr && (focus == widget || widget->isAncestorOf(focus)))
    widget->parentWidget()->setFocus();
  widget->hide();
}

}  // namespace

void TableMirror::Link(const Control& control, QWidget* widget, std::function<void()> show,
                       Placing placing) {
  ties_.push_back({&control, widget, std::move(show), placing});
}

void TableMirror::ShowChanges(std::uint32_t now, std::uint32_t pauseMs) {
  if (shown_ == Table.Changes) return;
  for (Tie& tie : ties_)
    if (!shown_ || tie.control->Changed > *shown_) ShowControl(tie, {now, pauseMs});
  RaiseChanged();
  shown_ = Table.Changes;
}

void TableMirror::ShowControl(Tie& tie, const Pause& pause) {
  tie.show();
  if (tie.placing != Placing::Fixed) ShowPlace(tie, pause);
  if (tie.control->Visible)
    tie.widget->show();
  else if (!tie.widget->isHidden())
    HideWidget(tie.widget);
  if (tie.layer == tie.control->Layer) return;
  tie.layer = tie.control->Layer;
  toRaise_.push_back(&tie);
}

// Only what was to be seen before and still is can be seen on its way.
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

void TableMirror::RaiseChanged() {
  if (toRaise_.empty()) return;
  std::ranges::sort(toRaise_, {}, &Tie::layer);
  for (const Tie* tie : toRaise_) tie->widget->raise();
  toRaise_.clear();
  for (QWidget* widget : front_) widget->raise();
}

}  // namespace Parlino
