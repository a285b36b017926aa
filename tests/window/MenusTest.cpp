// The keys and the entries of the menus.
#include <array>
#include <gtest/gtest.h>

#include <QAction>

#include "WindowGame.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

constexpr const char* Names[] = {"MnuNew",      "MnuLoad",     "MnuSave",  "MnuExit",
                                 "MnuRules",    "MnuAbout",    "MnuPname", "MnuNameBot1",
                                 "MnuNameBot2", "MnuBot3Name", "MnuView",  "ErasePoints"};

std::array<int, std::size(Names)> timesChosen;

template <std::size_t... Items>
void CountAllChoices(std::index_sequence<Items...>) {
  ((Events.MenuClick[Items] = [] { ++timesChosen[Items]; }), ...);
}

// By its key from wherever the focus is, and by the entry itself, which does nothing before the
// game processes events.
TEST(Menus, EveryCommandIsGivenByItsKeyAndByItsEntry) {
  WindowGame game;
  game.Load();
  CountAllChoices(std::make_index_sequence<std::size(Names)>());
  for (const char* focus : {"Table", "LstCardsPlayed", "CmdDontShow"}) {
    for (std::size_t item = 0; item < std::size(Names); ++item) {
      timesChosen = {};
      game.Find(focus).setFocus();
      auto& action = *game.Find("FrmMain").findChild<QAction*>(Names[item]);
      const QKeySequence keys = action.shortcut();
      if (!keys.isEmpty()) PressKey(keys[0].key(), keys[0].keyboardModifiers());
      action.trigger();
      EXPECT_EQ(timesChosen[item], 0);
      game.Turn();
      EXPECT_EQ(timesChosen[item], keys.isEmpty() ? 1 : 2) << Names[item] << " from " << focus;
    }
  }
}

}  // namespace
}  // namespace Parlino
