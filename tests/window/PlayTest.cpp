// Whole hands, played with the mouse, and hands that are abandoned.
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QListView>

#include "PersonAtWindow.h"
#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

TEST(Play, AWholeHandCanBePlayedByMouse) {
  WindowGame game;
  PersonAtWindow person;
  int mostLines = 0;
  const int status = game.Run([&] {
    const auto& list = dynamic_cast<QListView&>(game.Find("LstCardsPlayed"));
    const int lines = list.model()->rowCount();
    mostLines = std::max(mostLines, lines);
    if (lines > 0) {
      EXPECT_TRUE(
          list.viewport()->rect().intersects(list.visualRect(list.model()->index(lines - 1, 0))));
    }
    person.Act();
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(mostLines, 65);
  EXPECT_EQ(TrickNumber, 13);
  EXPECT_NE(game.platform.ReadFile("SaveGame.dat"), "0,0,#FALSE#\r\n");
}

// Wherever a hand is abandoned, a new one starts, and the program can be left.
TEST(Play, AHandCanBeAbandonedAtAnyMoment) {
  const std::pair<const char*, bool (*)()> moments[] = {
      {"while dealing",
       [] { return HandInProgress && TrumpSuit == -1 && Table.Cds[1].Picture != 0; }},
      {"before the bid", [] { return WindowGame::Find("FramBids").isVisible(); }},
      {"before the card", [] { return PlayerTurn == True; }}};
  for (const auto& [name, hasCome] : moments) {
    SCOPED_TRACE(name);
    WindowGame game;
    PersonAtWindow person;
    person.chooseAnswer = [] { return 0; };  // "Yes, Exit"
    int pressed = 0;
    const int status = game.Run([&] {
      const bool isQuiet = person.starts > 0 && QApplication::activeModalWidget() == nullptr;
      if (!isQuiet || pressed > 3 || !hasCome()) return person.Act();
      if (++pressed <= 3) return PressKey(Qt::Key_F2);
      PressKey(Qt::Key_X, Qt::ControlModifier);
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(pressed, 4);
    EXPECT_EQ(person.answers, 1);
    EXPECT_FALSE(game.Find("FrmMain").isVisible());
  }
}

}  // namespace
}  // namespace Parlino
