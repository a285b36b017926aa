#include "table/window/TableMirror.h"

#include <algorithm>

#include <QWidget>

#include "table/window/Design.h"

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

void TableMirror::ShowChanges() {
  if (shown_ == Table.Changes) return;
  for (Tie& tie : ties_)
    if (!shown_ || tie.control->Changed > *shown_) ShowControl(tie);
  RaiseChanged();
  shown_ = Table.Changes;
}

void TableMirror::ShowControl(Tie& tie) {
  tie.show();
  if (tie.placing == Placing::Follows) tie.widget->move(ToPixels(tie.control->Place));
  if (tie.control->Visible)
    tie.widget->show();
  else if (!tie.widget->isHidden())
    HideWidget(tie.widget);
  if (tie.layer == tie.control->Layer) return;
  tie.layer = tie.control->Layer;
  toRaise_.push_back(&tie);
}

void TableMirror::RaiseChanged() {
  if (toRaise_.empty()) return;
  std::ranges::sort(toRaise_, {}, &Tie::layer);
  for (const Tie* tie : toRaise_) tie->widget->raise();
  toRaise_.clear();
  if (front_ != nullptr) front_->raise();
}

}  // namespace Parlino
