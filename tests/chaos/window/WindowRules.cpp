#include "tests/chaos/window/WindowRules.h"

#include <algorithm>

#include <QApplication>
#include <QHash>
#include <QListView>

#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Named.h"
#include "table/window/parts/PictureView.h"
#include "tests/chaos/TableRules.h"
#include "tests/chaos/window/Hands.h"
#include "tests/support/TableLook.h"
#include "tests/window/WindowGame.h"

namespace Parlino {
namespace {

std::string AsShown(std::string_view text) {
  return ToText(text).toStdString();
}

// The windows in front of the table.
void AddOtherWindows(TableLook& look) {
  const MessageDialogView& dialog = MFormDeluxe;
  const auto add = [&look](std::string name, bool isVisible, std::string_view caption = {}) {
    ControlLook& part = look.controls.emplace_back();
    part.name = std::move(name);
    part.visible = isVisible;
    part.caption = caption;
  };
  add("MFormDeluxe.MFormDeluxe", dialog.Visible);
  add("MFormDeluxe.Label2", dialog.Visible, dialog.Label2);
  for (int answer = 0; answer < 3; ++answer)
    add(JoinText({"MFormDeluxe.Label1(", answer, ")"}),
        dialog.Visible && dialog.Faces[answer].Visible, dialog.Faces[answer].Label1);
  add("frmHelp.frmHelp", frmHelp.Visible);
  add("frmAbout.frmAbout", frmAbout.Loaded);
}

// As a window shows it: without bytes that are no text.
TableLook LookAtModel() {
  TableLook look = LookAtTable();
  AddOtherWindows(look);
  for (ControlLook& control : look.controls) control.caption = AsShown(control.caption);
  std::ranges::transform(look.lines, look.lines.begin(), AsShown);
  return look;
}

bool IsInTable(const QWidget& widget) {
  return widget.window()->objectName() == "FrmMain";
}

QString NameIn(const QWidget& widget) {
  return (IsInTable(widget) ? "" : widget.window()->objectName() + ".") + widget.objectName();
}

// What the widget shows in place of what the model says; what agrees stays as it is.
void See(const QWidget& widget, ControlLook& look) {
  look.visible = IsInTable(widget) ? !widget.isHidden() : widget.isVisible();
  const QVariant text = widget.property("text");
  if (text.isValid() && look.visible) look.caption = text.toString().toStdString();
  const bool isPlaced = look.card != 0 || look.name.starts_with("LblName");
  if (isPlaced && widget.pos() != ToPixels(look.place))
    look.place = {1.0 * widget.x() * TwipsInPixel, 1.0 * widget.y() * TwipsInPixel};
  if (const auto* view = dynamic_cast<const PictureView*>(&widget)) look.picture = view->Picture();
}

// The look of the windows, beginning with that of the model. While cards are on their way, or rest
// before they leave, they show what was before.
TableLook LookAtWindows(TableLook look, bool nothingGlides) {
  QHash<QString, ControlLook*> controls;
  for (ControlLook& control : look.controls) {
    const bool isCard = control.card != 0;
    if (isCard && !nothingGlides) continue;
    control.visible = false;  // unless there is a widget
    controls[isCard ? MemberName("Cds", control.card) : QString::fromStdString(control.name)] =
        &control;
  }
  for (const QWidget* widget : QApplication::allWidgets())
    if (ControlLook* control = controls.value(NameIn(*widget))) See(*widget, *control);
  const auto& list = *dynamic_cast<QListView&>(WindowGame::Find("LstCardsPlayed")).model();
  look.lines.clear();
  for (int row = 0; row < list.rowCount(); ++row)
    look.lines.push_back(list.index(row, 0).data().toString().toStdString());
  return look;
}

}  // namespace

void RequireWindowRules(bool nothingGlides) {
  const TableLook model = LookAtModel();
  const TableLook shown = LookAtWindows(model, nothingGlides);
  for (const std::string& wrong : DescribeChanges(model, shown, true))
    Require(false, "the windows show the model, and not " + wrong);
  Require(shown.lines == model.lines, "the list of cards played shows its lines");
  const auto modal = std::ranges::count_if(WindowsThere(), &QWidget::isModal);
  Require(modal <= 1, "at most one modal window takes input");
}

}  // namespace Parlino
