// The ways out of the program.
#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>

#include "WindowGame.h"

namespace Parlino {
namespace {

TEST(Closing, TheCloseBoxAsksAndCarryOnKeepsTheWindow) {
  WindowGame game;
  int asked = 0;
  const int status = game.Run([&] {
    QWidget& window = game.Find("FrmMain");
    EXPECT_TRUE(window.isVisible());
    if (QApplication::activeModalWidget() == nullptr) {
      EXPECT_FALSE(window.close());
      ++asked;
    } else {
      EXPECT_EQ(game.Find("Label3").property("text").toString(), "   Really Exit?");
      Click(game.FindMember("Label1", asked < 3 ? 1 : 0));
    }
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(asked, 3);
  EXPECT_FALSE(game.Find("FrmMain").isVisible());
}

TEST(Closing, ExitWithoutAGameInProgressAsksNothing) {
  WindowGame game;
  EXPECT_EQ(game.Run([] {
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    PressKey(Qt::Key_X, Qt::ControlModifier);
  }),
            0);
}

TEST(Closing, AnOpenMenuGoesWithTheTable) {
  WindowGame game;
  EXPECT_EQ(game.Run([] {
    PressKey(Qt::Key_P, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QEvent quit(QEvent::Quit);
    QApplication::sendEvent(qApp, &quit);
  }),
            0);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

// This holds even while a box is open, when no event of the table is raised.
TEST(Closing, TheEndOfTheSessionEndsTheProgramAtOnce) {
  for (const bool isBoxOpen : {false, true}) {
    WindowGame game;
    const int status = game.Run([&] {
      if (isBoxOpen && OpenBox() == nullptr) return PressKey(Qt::Key_F1);
      QEvent quit(QEvent::Quit);
      QApplication::sendEvent(qApp, &quit);
    });
    EXPECT_EQ(status, 0);
  }
}

}  // namespace
}  // namespace Parlino
