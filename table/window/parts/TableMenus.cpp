#include "table/window/parts/TableMenus.h"

#include <span>

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include "table/TableEvents.h"
#include "table/window/input/PendingEvents.h"

namespace Parlino {
namespace {

struct Command {
  MenuItem item;
  const char* name;
  const char* caption;
  const char* shortcut;
};

constexpr Command PlayCommands[] = {
    {MenuItem::MnuNew, "MnuNew", "&New Game", "F2"},
    {MenuItem::MnuLoad, "MnuLoad", "&Load Saved Game", "Ctrl+L"},
    {MenuItem::MnuSave, "MnuSave", "&Save Game", "Ctrl+S"},
    {MenuItem::MnuExit, "MnuExit", "E&xit", "Ctrl+X"},
};
constexpr Command HelpCommands[] = {{MenuItem::MnuRules, "MnuRules", "Rules and Help", "F1"}};
constexpr Command AboutCommand = {MenuItem::MnuAbout, "MnuAbout", "&About", ""};
constexpr Command NameCommands[] = {
    {MenuItem::MnuPname, "MnuPname", "Enter Your Name", "Ctrl+A"},
    {MenuItem::MnuNameBot1, "MnuNameBot1", "Enter Bot1 Name", "Ctrl+B"},
    {MenuItem::MnuNameBot2, "MnuNameBot2", "Enter Bot2 Name", "Ctrl+C"},
    {MenuItem::MnuBot3Name, "MnuBot3Name", "Enter Bot3 Name", "Ctrl+D"},
};
constexpr Command StatisticsCommands[] = {
    {MenuItem::MnuView, "MnuView", "&View Statistics", "Ctrl+V"},
    {MenuItem::ErasePoints, "ErasePoints", "Erase Points", "Ctrl+E"},
};

bool ChooseMenuNumber(int item) {
  return ChooseMenu(static_cast<MenuItem>(item));
}

// `place` is a menu or the menu bar itself.
void AddCommand(QWidget& place, const Command& command, PendingEvents& pending) {
  auto* action = new QAction(command.caption, &place);
  action->setObjectName(command.name);
  action->setShortcut(QKeySequence(command.shortcut));
  action->setMenuRole(QAction::NoRole);  // keeps the entry in its place on every desktop
  const PendingEvent event{ChooseMenuNumber, static_cast<int>(command.item)};
  QObject::connect(action, &QAction::triggered, [&pending, event] { pending.Append(event); });
  place.addAction(action);
}

void AddCommands(QMenu& menu, std::span<const Command> commands, PendingEvents& pending) {
  for (const Command& command : commands) AddCommand(menu, command, pending);
}

template <class Place>
QMenu& AddMenu(Place& place, const char* name, const char* caption) {
  QMenu* menu = place.addMenu(caption);
  menu->setObjectName(name);
  menu->setAccessibleName(QString(caption).remove('&') + " menu");
  return *menu;
}

}  // namespace

void BuildMenus(QMenuBar& bar, PendingEvents& pending) {
  bar.setAccessibleName("Menus");
  AddCommands(AddMenu(bar, "MnuPlay", "&Play"), PlayCommands, pending);
  AddCommands(AddMenu(bar, "MnuHelp", "&Help"), HelpCommands, pending);
  AddCommand(bar, AboutCommand, pending);
  QMenu& names = AddMenu(bar, "MnuNames", "&Enter Names");
  AddCommands(AddMenu(names, "EnterNames", "Enter Names"), NameCommands, pending);
  AddCommands(AddMenu(bar, "MnuStats", "&Statistiics"), StatisticsCommands, pending);
}

}  // namespace Parlino
