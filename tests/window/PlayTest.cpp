// Whole hands and games, played in every way.
#include <gtest/gtest.h>

#include <QApplication>

#include "PersonAtWindow.h"
#include "WindowGame.h"
#include "engine/state/GameState.h"

namespace Parlino {
namespace {

TEST(Play, AWholeGameCanBePlayedByKeys) {
  WindowGame game;
  PersonAtWindow person(PersonAtWindow::Means::Keys);
  person.chooseAnswer = [] {
    return QApplication::activeModalWidget()->windowTitle() == "Game Over" ? 1 : 0;
  };
  EXPECT_EQ(game.Run([&] { person.Act(); }), 0);
  EXPECT_EQ(GamesPlayed, 1);
  EXPECT_EQ(game.platform.ReadFile("SaveGame.dat"), "0,0,#FALSE#\r\n");
}

TEST(Play, AWholeHandCanBePlayedByMouseAndByTools) {
  for (const auto means : {PersonAtWindow::Means::Mouse, PersonAtWindow::Means::AssistiveTools}) {
    WindowGame game;
    PersonAtWindow person(means);
    EXPECT_EQ(game.Run([&] { person.Act(); }), 0);
    EXPECT_EQ(TrickNumber, TricksInHand);
    EXPECT_NE(game.platform.ReadFile("SaveGame.dat"), "0,0,#FALSE#\r\n");
  }
}

}  // namespace
}  // namespace Parlino
