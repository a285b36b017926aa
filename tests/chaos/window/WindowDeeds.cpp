#include "tests/chaos/window/WindowDeeds.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "table/window/painting/Design.h"
#include "tests/window/WindowGame.h"

namespace Parlino {
namespace {

// By DeedKind: the control that is clicked, # being the deed's number, and the key that is as good
// as a click on it.
constexpr struct {
  const char* control;
  QKeyCombination key = Qt::Key_unknown;
} Controls[] = {
    {"Cds(#)"},
    {"Cds(#)"},
    {"LblBids(#)"},
    {"Label1(#)"},
    {"Label1(#)"},
    {"FrmMain"},
    {"CmdDontShow"},
    {"FrmMain", Qt::ALT | Qt::Key_F4},
    {"btnClose", Qt::ALT | Qt::Key_C},
    {"cmdOK", Qt::ALT | Qt::Key_O},
    {"cmdSysInfo"},
};

void StrikeOneOf(Fingers& fingers, std::initializer_list<Qt::Key> keys) {
  fingers.Strike(keys.begin()[fingers.session.person.NextBelow(static_cast<int>(keys.size()))]);
}

void Bid(QWidget& button, Fingers& fingers) {
  if (!fingers.session.person.Once(3)) return void(fingers.Click(button));
  button.setFocus();
  StrikeOneOf(fingers, {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space});
}

void Answer(QWidget& caption, Fingers& fingers) {
  ChaosPerson& person = fingers.session.person;
  switch (person.NextBelow(6)) {
    case 0:
      return StrikeOneOf(fingers, {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Return});
    case 1:
      for (int count = person.NextBelow(4); count > 0; --count) fingers.Strike(Qt::Key_Tab);
      return fingers.Strike(Qt::Key_Space);
    default:
      fingers.Click(caption);
  }
}

void AnswerBox(QDialog& box, Fingers& fingers) {
  ChaosPerson& person = fingers.session.person;
  fingers.session.AddToNote("instead, the box that is open");
  const auto buttons = box.findChildren<QAbstractButton*>();
  switch (person.NextBelow(6)) {
    case 0:
      return StrikeOneOf(fingers, {Qt::Key_Escape, Qt::Key_Return});
    case 1:
      fingers.Strike(Qt::Key_Tab);
      return fingers.Strike(Qt::Key_Space);
    case 2:
      box.close();
      return;
    case 3:
      if (auto* line = box.findChild<QLineEdit*>()) line->setFocus();
      return fingers.Write(ToText(person.ChooseName()));
    default:
      fingers.Click(*buttons.at(person.NextBelow(static_cast<int>(buttons.size()))));
  }
}

// First opens the menus that lead to the entry, one after the other.
void ClickEntry(QAction& entry, QWidget& place, Fingers& fingers) {
  auto* menu = qobject_cast<QMenu*>(&place);
  if (menu == nullptr) {
    auto& bar = dynamic_cast<QMenuBar&>(place);
    return void(fingers.ClickAt(bar, bar.actionGeometry(&entry).center()));
  }
  if (!menu->isVisible()) ClickEntry(*menu->menuAction(), *menu->parentWidget(), fingers);
  fingers.ClickAt(*menu, menu->actionGeometry(&entry).center());
}

void ChooseMenuEntry(int item, QWidget& table, Fingers& fingers) {
  constexpr const char* names[] = {"MnuNew",      "MnuLoad",     "MnuSave",  "MnuExit",
                                   "MnuRules",    "MnuAbout",    "MnuPname", "MnuNameBot1",
                                   "MnuNameBot2", "MnuBot3Name", "MnuView",  "ErasePoints"};
  auto& entry = *table.findChild<QAction*>(names[item]);
  const QKeySequence keys = entry.shortcut();
  switch (fingers.session.person.NextBelow(4)) {
    case 0:
      return entry.trigger();
    case 1:
      if (table.isVisible()) ClickEntry(entry, dynamic_cast<QWidget&>(*entry.parent()), fingers);
      return;
    default:
      if (OpenBox() == nullptr) QApplication::setActiveWindow(&table);
      if (!keys.isEmpty()) fingers.Strike(keys[0].key(), keys[0].keyboardModifiers());
  }
}

void Leave(QWidget& control, QKeyCombination key, Fingers& fingers) {
  QWidget& window = *control.window();
  const int way = fingers.session.person.NextBelow(4);
  if (way == 0) return void(window.close());
  if (way == 1) return &control == &window ? void() : void(fingers.Click(control));
  if (window.isVisible()) QApplication::setActiveWindow(&window);
  if (way == 2) return fingers.Strike(Qt::Key_Escape);
  fingers.Strike(key.key(), key.keyboardModifiers());
}

}  // namespace

bool DoAtWindow(const Deed& deed, Fingers& fingers) {
  if (QDialog* box = OpenBox(); box != nullptr && fingers.session.person.Once(2)) {
    AnswerBox(*box, fingers);
    return true;
  }
  const auto& [name, key] = Controls[static_cast<int>(deed.kind)];
  QWidget* control = FindAny(QString(name).replace('#', QString::number(deed.number)));
  if (control == nullptr) return false;
  const bool isSeen = control->isVisible();
  if (key.key() != Qt::Key_unknown)
    Leave(*control, key, fingers);
  else if (deed.kind == DeedKind::HoverCard)
    fingers.Move(*control);
  else if (deed.kind == DeedKind::ClickBid)
    Bid(*control, fingers);
  else if (deed.kind == DeedKind::PressAnswer || deed.kind == DeedKind::ClickAnswer)
    Answer(*control, fingers);
  else if (deed.kind == DeedKind::ChooseMenu)
    ChooseMenuEntry(deed.number, *control, fingers);
  else
    fingers.Click(*control);
  return isSeen;
}

}  // namespace Parlino
