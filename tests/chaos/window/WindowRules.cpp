#include "tests/chaos/window/WindowRules.h"

#include <algorithm>

#include <QAbstractItemModel>
#include <QApplication>
#include <QCursor>
#include <QInputDialog>
#include <QListView>
#include <QMessageBox>
#include <QTextEdit>

#include "engine/TrickPlay.h"
#include "engine/state/GameState.h"
#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Named.h"
#include "table/window/painting/Pictures.h"
#include "table/window/parts/PictureView.h"
#include "tests/chaos/window/Fingers.h"
#include "tests/support/TableLook.h"
#include "tests/window/WindowGame.h"

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

bool IsInPlayersHand(int card) {
  constexpr double top = 6600;
  const PictureBox& box = Table.Cds[card];
  return Pack[card].Owner == Player && box.Picture == card && box.Place.Top == top;
}

// Only a card of the Player's hand may have a hint, and only one that is true.
bool HintIsRight(const QWidget& widget, const ControlLook& card) {
  const bool isDue = IsInPlayersHand(card.card) && HintHolds(ToInteger(card.card));
  return widget.testAttribute(Qt::WA_SetCursor) == isDue &&
         widget.toolTip() == (isDue ? PlainToolTip(ToText(card.toolTip)) : QString());
}

bool IsShown(const QWidget& widget, const ControlLook& look, bool nothingGlides) {
  if (widget.isHidden() == look.visible) return false;
  const QVariant text = widget.property("text");
  if (text.isValid() && text.toString() != ToText(look.caption)) return false;
  const bool isPlaced = look.card != 0 || look.name.starts_with("LblName");
  if (isPlaced && nothingGlides && widget.pos() != ToPixels(look.place)) return false;
  const auto* view = dynamic_cast<const PictureView*>(&widget);
  if (view == nullptr) return true;
  if (view->Picture() != look.picture || (look.card != 0 && !HintIsRight(widget, look)))
    return false;
  return look.picture == 0 || widget.size() == PictureSize(static_cast<Integer>(look.picture));
}

bool ListIsShown(const TableLook& look) {
  const auto& model = *dynamic_cast<QListView&>(WindowGame::Find("LstCardsPlayed")).model();
  if (model.rowCount() != static_cast<int>(look.lines.size())) return false;
  for (int row = 0; row < model.rowCount(); ++row)
    if (model.index(row, 0).data().toString() != ToText(look.lines[static_cast<std::size_t>(row)]))
      return false;
  return true;
}

// Controls brought to the front later must lie further in front; West's name and the information
// line lie in front of everything.
bool LayersAreInOrder(const TableLook& look, const std::vector<QWidget*>& widgets) {
  std::uint32_t behind = 0;
  for (const QObject* child : WindowGame::Find("Table").children()) {
    const auto found = std::ranges::find(widgets, child);
    if (found == widgets.end()) continue;
    const ControlLook& control = look.controls[static_cast<std::size_t>(found - widgets.begin())];
    if (control.name == "LblName(1)" || control.name == "LblInfo") continue;
    if (control.layer < behind) return false;
    behind = control.layer;
  }
  return true;
}

// What a person sees without moving the mouse.
bool PointerTellsWhoseTurnItIs() {
  const QWidget& window = WindowGame::Find("FrmMain");
  const bool isThere = window.underMouse() && TableTakesInput() &&
                       QApplication::activeModalWidget() == nullptr &&
                       QApplication::mouseButtons() == Qt::NoButton;
  const QWidget* seen = isThere ? window.childAt(window.mapFromGlobal(QCursor::pos())) : nullptr;
  if (seen == nullptr || !seen->objectName().startsWith("Cds(")) return true;
  if (!IsInPlayersHand(seen->objectName().mid(4).chopped(1).toInt())) return true;
  return seen->toolTip().contains(PlayerTurn != False ? "you wish to play." : "at the moment.");
}

bool DialogIsAsInModel() {
  if (IsThere("MFormDeluxe") != MFormDeluxe.Visible) return false;
  if (!MFormDeluxe.Visible) return true;
  for (int answer = 0; answer < 3; ++answer) {
    const ButtonFace& face = MFormDeluxe.Faces[answer];
    if (!Says(MemberName("Label1", answer), face.Label1)) return false;
    if (FindAny(MemberName("Pic1", answer))->isVisible() != face.Visible) return false;
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
  const auto modal = std::ranges::count_if(WindowsThere(), [](const QWidget* window) {
    return window->windowModality() != Qt::NonModal;
  });
  return modal <= 1 && (modal == 1) == (QApplication::activeModalWidget() != nullptr);
}

bool IsBox(const QWidget* window) {
  return qobject_cast<const QMessageBox*>(window) || qobject_cast<const QInputDialog*>(window);
}

QString WidgetName(const ControlLook& look) {
  return look.card != 0 ? MemberName("Cds", look.card) : QString::fromStdString(look.name);
}

}  // namespace

WindowRules::WindowRules() {
  for (const ControlLook& look : LookAtTable().controls)
    widgets_.push_back(&WindowGame::Find(WidgetName(look)));
}

std::string WindowRules::NameOfWrongControl(bool nothingGlides) const {
  const TableLook look = LookAtTable();
  for (std::size_t place = 0; place < widgets_.size(); ++place)
    if (!IsShown(*widgets_[place], look.controls[place], nothingGlides))
      return look.controls[place].name;
  if (!ListIsShown(look)) return "the lines of the list";
  return LayersAreInOrder(look, widgets_) ? std::string() : "the layer of a control";
}

std::string WindowRules::Broken(bool nothingGlides, int boxesOpen) const {
  static constexpr struct {
    const char* name;
    bool (*holds)();
  } rules[] = {
      {"the message dialog shows its model", DialogIsAsInModel},
      {"the help window is there as in the model", HelpIsAsInModel},
      {"the about window is there as in the model", AboutIsAsInModel},
      {"at most one modal window takes input", OneWindowTakesInputAtMost},
  };
  if (const std::string wrong = NameOfWrongControl(nothingGlides); !wrong.empty())
    return "the window shows the model, but not " + wrong;
  if (nothingGlides && !PointerTellsWhoseTurnItIs()) return "the pointer tells whose turn it is";
  for (const auto& rule : rules)
    if (!rule.holds()) return rule.name;
  if (boxesOpen > 1) return "no box opens from within another";
  if (std::ranges::count_if(WindowsThere(), IsBox) != boxesOpen)
    return "a box is on the screen as long as the game waits for it";
  return {};
}

// The corners of a picture are round and show what lies below.
std::string WindowRules::BrokenFace(int card) const {
  constexpr int corner = 8;
  const PictureBox& box = Table.Cds[card];
  if (!box.Visible || box.Picture == 0) return {};
  QWidget& widget = WindowGame::FindMember("Cds", card);
  const auto inner = [](const QPixmap& picture) {
    const QRect all(QPoint(0, 0), picture.size());
    return picture.copy(all.adjusted(corner, corner, -corner, -corner))
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
  };
  const QPixmap expected = CardPicture(box.Picture, widget.devicePixelRatioF());
  return inner(widget.grab()) == inner(expected) ? std::string()
                                                 : "the face of " + CardName(card) + " is drawn";
}

}  // namespace Parlino
