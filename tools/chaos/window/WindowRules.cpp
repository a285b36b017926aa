#include "tools/chaos/window/WindowRules.h"

#include <algorithm>

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QTextEdit>

#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"
#include "table/window/painting/Design.h"
#include "tools/chaos/window/AnyWidget.h"

namespace Parlino {
namespace {

bool IsThere(const char* name) {
  const QWidget* widget = FindAny(name);
  return widget != nullptr && widget->isVisible();
}

bool Says(const QString& name, const std::string& text) {
  const QWidget* widget = FindAny(name);
  return widget != nullptr && widget->property("text").toString() == ToText(text);
}

QWidgetList WindowsThere() {
  QWidgetList windows = QApplication::topLevelWidgets();
  windows.removeIf([](const QWidget* window) {
    return !window->isVisible() || window->windowType() == Qt::ToolTip;
  });
  return windows;
}

bool IsBox(const QWidget* window) {
  return qobject_cast<const QMessageBox*>(window) || qobject_cast<const QInputDialog*>(window);
}

bool TableIsAsInModel() {
  return IsThere("FrmMain") == Table.FrmMain.Visible;
}

bool DialogIsAsInModel() {
  if (IsThere("MFormDeluxe") != MFormDeluxe.Visible) return false;
  if (!MFormDeluxe.Visible) return true;
  for (int answer = 0; answer < 3; ++answer) {
    const ButtonFace& face = MFormDeluxe.Faces[answer];
    const QString number = QString("1(%1)").arg(answer);
    if (!Says("Label" + number, face.Label1)) return false;
    if (FindAny("Pic" + number)->isVisible() != face.Visible) return false;
  }
  return Says("Label2", MFormDeluxe.Label2) && Says("Label3", MFormDeluxe.Label3);
}

bool HelpIsAsInModel() {
  if (IsThere("frmHelp") != frmHelp.Visible) return false;
  return !frmHelp.Visible || !dynamic_cast<QTextEdit&>(*FindAny("rtbHelp")).toPlainText().isEmpty();
}

bool AboutIsAsInModel() {
  if (IsThere("frmAbout") != frmAbout.Loaded) return false;
  return !frmAbout.Loaded ||
         (Says("lblVersion", frmAbout.lblVersion) && Says("lblDisclaimer", frmAbout.lblDisclaimer));
}

bool OneWindowTakesInputAtMost() {
  const QWidgetList windows = WindowsThere();
  const auto modal = std::ranges::count_if(
      windows, [](const QWidget* window) { return window->windowModality() != Qt::NonModal; });
  return modal <= 1 && (modal == 1) == (QApplication::activeModalWidget() != nullptr);
}

}  // namespace

std::string BrokenWindowRule(int boxesOpen) {
  static constexpr struct {
    const char* name;
    bool (*holds)();
  } rules[] = {
      {"the table window is there as in the model", TableIsAsInModel},
      {"the message dialog shows its model", DialogIsAsInModel},
      {"the help window is there as in the model", HelpIsAsInModel},
      {"the about window is there as in the model", AboutIsAsInModel},
      {"at most one modal window takes input", OneWindowTakesInputAtMost},
  };
  for (const auto& rule : rules)
    if (!rule.holds()) return rule.name;
  if (boxesOpen > 1) return "no box opens from within another";
  const QWidgetList windows = WindowsThere();
  if (std::ranges::count_if(windows, IsBox) != boxesOpen)
    return "a box is on the screen as long as the game waits for it";
  return {};
}

bool IsAnyWindowThere() {
  return !WindowsThere().isEmpty();
}

}  // namespace Parlino
