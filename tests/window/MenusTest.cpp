// The menus, their captions and their keys.
#include <array>
#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "WindowGame.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

struct Entry {
  MenuItem item;
  const char* name;
  const char* caption;
  Qt::Key key;  // 0 without a shortcut
  Qt::KeyboardModifiers modifiers;
  const char* menu;
};

const Entry Entries[] = {
    {MenuItem::MnuNew, "MnuNew", "&New Game", Qt::Key_F2, {}, "MnuPlay"},
    {MenuItem::MnuLoad, "MnuLoad", "&Load Saved Game", Qt::Key_L, Qt::ControlModifier, "MnuPlay"},
    {MenuItem::MnuSave, "MnuSave", "&Save Game", Qt::Key_S, Qt::ControlModifier, "MnuPlay"},
    {MenuItem::MnuExit, "MnuExit", "E&xit", Qt::Key_X, Qt::ControlModifier, "MnuPlay"},
    {MenuItem::MnuRules, "MnuRules", "Rules and Help", Qt::Key_F1, {}, "MnuHelp"},
    {MenuItem::MnuPname, "MnuPname", "Enter Your Name", Qt::Key_A, Qt::ControlModifier,
     "EnterNames"},
    {MenuItem::MnuNameBot1, "MnuNameBot1", "Enter Bot1 Name", Qt::Key_B, Qt::ControlModifier,
     "EnterNames"},
    {MenuItem::MnuNameBot2, "MnuNameBot2", "Enter Bot2 Name", Qt::Key_C, Qt::ControlModifier,
     "EnterNames"},
    {MenuItem::MnuBot3Name, "MnuBot3Name", "Enter Bot3 Name", Qt::Key_D, Qt::ControlModifier,
     "EnterNames"},
    {MenuItem::MnuView, "MnuView", "&View Statistics", Qt::Key_V, Qt::ControlModifier, "MnuStats"},
    {MenuItem::ErasePoints, "ErasePoints", "Erase Points", Qt::Key_E, Qt::ControlModifier,
     "MnuStats"},
};

std::array<int, 12> timesChosen;

template <int Item>
void CountChoice() {
  ++timesChosen.at(Item);
}

template <std::size_t... Items>
void CountAllChoices(std::index_sequence<Items...>) {
  timesChosen = {};
  ((Events.MenuClick[Items] = CountChoice<static_cast<int>(Items)>), ...);
}

QAction& FindAction(const char* name) {
  return *WindowGame::Find("FrmMain").findChild<QAction*>(name);
}

TEST(Menus, TheBarReadsFromLeftToRight) {
  const WindowGame game;
  QStringList captions;
  for (const QAction* entry : game.Find("FrmMain").findChild<QMenuBar*>()->actions())
    captions.append(entry->text());
  EXPECT_EQ(captions.join(" "), "&Play &Help &About &Enter Names &Statistiics");
  EXPECT_EQ(FindAction("MnuAbout").menu(), nullptr);
}

TEST(Menus, EveryItemHasItsCaptionInItsMenu) {
  const WindowGame game;
  for (const Entry& entry : Entries) {
    QAction& action = FindAction(entry.name);
    EXPECT_EQ(action.text(), entry.caption) << entry.name;
    EXPECT_EQ(action.parent()->objectName(), entry.menu) << entry.name;
    EXPECT_EQ(action.shortcut(), QKeySequence(entry.modifiers | entry.key)) << entry.name;
  }
}

TEST(Menus, ShortcutsWorkWhateverHasTheFocus) {
  WindowGame game;
  game.Load();
  for (const char* focus : {"Table", "LstCardsPlayed", "CmdDontShow"}) {
    CountAllChoices(std::make_index_sequence<timesChosen.size()>());
    game.Find(focus).setFocus();
    for (const Entry& entry : Entries) {
      PressKey(entry.key, entry.modifiers);
      game.Turn();
      EXPECT_EQ(timesChosen.at(static_cast<std::size_t>(entry.item)), 1)
          << entry.name << " from " << focus;
    }
  }
}

TEST(Menus, AboutIsItselfTheCommand) {
  WindowGame game;
  game.Load();
  CountAllChoices(std::make_index_sequence<timesChosen.size()>());
  FindAction("MnuAbout").trigger();
  EXPECT_EQ(timesChosen.at(static_cast<std::size_t>(MenuItem::MnuAbout)), 0);  // not yet
  game.Turn();
  EXPECT_EQ(timesChosen.at(static_cast<std::size_t>(MenuItem::MnuAbout)), 1);
}

TEST(Menus, SaveGameDoesNothing) {
  WindowGame game;
  game.Load();
  const std::uint64_t changes = Table.Changes;
  PressKey(Qt::Key_S, Qt::ControlModifier);
  game.Turn();
  EXPECT_EQ(Table.Changes, changes);
  EXPECT_EQ(OpenBox(), nullptr);
}

}  // namespace
}  // namespace Parlino
