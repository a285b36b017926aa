// Whole hands and games, played in every way.
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QListView>

#include "PersonAtWindow.h"
#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"

namespace Parlino {
namespace {

TEST(Play, AWholeGameCanBePlayedByKeys) {
  WindowGame game;
  PersonAtWindow person(PersonAtWindow::Means::Keys);
  person.chooseAnswer = [] {
    return QApplication::activeModalWidget()->windowTitle() == "Game Over" ? 1 : 0;
  };
  EXPECT_EQ(game.Run([&] { person.Act(); }), 0);
  EXPECT_GE(person.answers, 3);
  EXPECT_EQ(GamesPlayed, 1);
  EXPECT_EQ(game.platform.ReadFile("SaveGame.dat"), "0,0,#FALSE#\r\n");
}

TEST(Play, AWholeHandCanBePlayedByTools) {
  WindowGame game;
  PersonAtWindow person(PersonAtWindow::Means::AssistiveTools);
  EXPECT_EQ(game.Run([&] { person.Act(); }), 0);
  EXPECT_EQ(person.cards, TricksInHand);
}

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

}  // namespace
}  // namespace Parlino
