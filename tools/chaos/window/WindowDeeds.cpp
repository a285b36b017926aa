#include "tools/chaos/window/WindowDeeds.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "table/window/painting/Design.h"
#include "tests/window/WindowGame.h"
#include "tools/chaos/window/AnyWidget.h"

namespace Parlino {

struct WindowDeeds::WayOut {
  const char* window;
  const char* button;
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
};

bool WindowDeeds::Do(const Deed& deed) {
  if (QDialog* box = OpenBox(); box != nullptr && session_.person.Once(2)) return AnswerBox(*box);
  switch (deed.kind) {
    case DeedKind::ClickCard:
      return fingers_.Click(WindowGame::FindMember("Cds", deed.number));
    case DeedKind::HoverCard:
      return fingers_.Move(WindowGame::FindMember("Cds", deed.number));
    case DeedKind::ClickBid:
      return Bid(WindowGame::FindMember("LblBids", deed.number));
    case DeedKind::PressAnswer:
    case DeedKind::ClickAnswer:
      return Answer(deed.number);
    case DeedKind::ChooseMenu:
      return ChooseMenu(deed.number);
    case DeedKind::ClickDontShow:
      return fingers_.Click(WindowGame::Find("CmdDontShow"));
    case DeedKind::CloseTable:
      return Leave({"FrmMain", nullptr, Qt::Key_F4, Qt::AltModifier});
    case DeedKind::CloseHelp:
      return Leave({"frmHelp", "btnClose", Qt::Key_C, Qt::AltModifier});
    case DeedKind::CloseAbout:
      return Leave({"frmAbout", "cmdOK", Qt::Key_O, Qt::AltModifier});
    default:
      QWidget* button = FindAny("cmdSysInfo");
      return button != nullptr && fingers_.Click(*button);
  }
}

bool WindowDeeds::Bid(QWidget& button) {
  if (!session_.person.Once(3)) return fingers_.Click(button);
  constexpr Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space};
  const bool isSeen = button.isVisible();
  button.setFocus();
  fingers_.Strike(keys[session_.person.NextBelow(3)]);
  return isSeen;
}

bool WindowDeeds::Answer(int answer) {
  QWidget* caption = FindAny(QString("Label1(%1)").arg(answer));
  if (caption == nullptr) return false;
  const bool isSeen = caption->isVisible();
  switch (session_.person.NextBelow(6)) {
    case 0:
      fingers_.Strike(session_.person.Once(3) ? Qt::Key_Escape : Qt::Key_Return);
      return isSeen;
    case 1:
      for (int count = session_.person.NextBelow(4); count > 0; --count)
        fingers_.Strike(Qt::Key_Tab);
      fingers_.Strike(Qt::Key_Space);
      return isSeen;
    default:
      return fingers_.Click(*caption);
  }
}

bool WindowDeeds::AnswerBox(QDialog& box) {
  session_.AddToNote("instead, the box that is open");
  const auto buttons = box.findChildren<QAbstractButton*>();
  switch (session_.person.NextBelow(8)) {
    case 0:
      fingers_.Strike(Qt::Key_Escape);
      return true;
    case 1:
      fingers_.Strike(Qt::Key_Return);
      return true;
    case 2:
      fingers_.Strike(Qt::Key_Tab);
      fingers_.Strike(Qt::Key_Space);
      return true;
    case 3:
      box.close();
      return true;
    case 4:
    case 5:
      if (auto* line = box.findChild<QLineEdit*>()) line->setFocus();
      fingers_.Write(ToText(session_.person.ChooseName()));
      return true;
    default:
      return fingers_.Click(
          *buttons.at(session_.person.NextBelow(static_cast<int>(buttons.size()))));
  }
}

bool WindowDeeds::ChooseMenu(int item) {
  constexpr const char* names[] = {"MnuNew",      "MnuLoad",     "MnuSave",  "MnuExit",
                                   "MnuRules",    "MnuAbout",    "MnuPname", "MnuNameBot1",
                                   "MnuNameBot2", "MnuBot3Name", "MnuView",  "ErasePoints"};
  QWidget& table = WindowGame::Find("FrmMain");
  auto& entry = *table.findChild<QAction*>(names[item]);
  const bool isSeen = table.isVisible();
  const QKeySequence keys = entry.shortcut();
  switch (session_.person.NextBelow(4)) {
    case 0:
      entry.trigger();
      break;
    case 1:
      if (isSeen) ClickEntry(entry, dynamic_cast<QWidget&>(*entry.parent()));
      break;
    default:
      if (OpenBox() == nullptr) QApplication::setActiveWindow(&table);
      if (!keys.isEmpty()) fingers_.Strike(keys[0].key(), keys[0].keyboardModifiers());
  }
  return isSeen;
}

// First opens the menus that lead to the entry, one after the other.
void WindowDeeds::ClickEntry(QAction& entry, QWidget& place) {
  auto* menu = qobject_cast<QMenu*>(&place);
  if (menu == nullptr) {
    auto& bar = dynamic_cast<QMenuBar&>(place);
    fingers_.ClickAt(bar, bar.actionGeometry(&entry).center());
    return;
  }
  if (!menu->isVisible()) ClickEntry(*menu->menuAction(), *menu->parentWidget());
  fingers_.ClickAt(*menu, menu->actionGeometry(&entry).center());
}

bool WindowDeeds::Leave(const WayOut& way) {
  QWidget* window = FindAny(way.window);
  if (window == nullptr) return false;
  const bool isSeen = window->isVisible();
  switch (session_.person.NextBelow(4)) {
    case 0:
      window->close();
      return isSeen;
    case 1:
      if (isSeen) QApplication::setActiveWindow(window);
      fingers_.Strike(way.key, way.modifiers);
      return isSeen;
    case 2:
      if (isSeen) QApplication::setActiveWindow(window);
      fingers_.Strike(Qt::Key_Escape);
      return isSeen;
    default:
      return way.button == nullptr ? isSeen : fingers_.Click(*FindAny(way.button));
  }
}

}  // namespace Parlino
