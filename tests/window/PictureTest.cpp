// The table as it is drawn, compared with pictures that somebody has looked at.
#include <gtest/gtest.h>

#include "PersonAtWindow.h"
#include "Pictures.h"
#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

TEST(Picture, TheWelcomePanel) {
  WindowGame game;
  game.Load();
  ExpectAsKept(game.Find("Table"), "welcome");
}

// In the second trick of the hand, with every place taken that a trick won can take.
class PictureOfPlay : public testing::Test {
 protected:
  PictureOfPlay() {
    PersonAtWindow person;
    game.Run([&] {
      if (Table.FramBids.Visible && person.bids == 0) ExpectAsKept(table, "bidding");
      if (TrickNumber < 2 || PlayerTurn == False) return person.Act();
      throw SeenEnough{};
    });
    for (TrickPile* pile :
         {&Table.ImgBackP, &Table.ImgBackWest, &Table.ImgBackNorth, &Table.ImgBackEast})
      for (Control& back : *pile) Show(back);
    game.platform.person = [] {};
    game.Turn();
  }

  WindowGame game;
  QWidget& table = game.Find("Table");
};

TEST_F(PictureOfPlay, IsAsKept) {
  ExpectAsKept(table, "playing");
}

// Whichever control is missing or moved.
TEST_F(PictureOfPlay, ShowsEveryControl) {
  int controls = 0;
  for (QWidget* control : table.findChildren<QWidget*>()) {
    if (!control->isVisible() || control->visibleRegion().isEmpty()) continue;
    if (control->objectName().isEmpty() || control->objectName().startsWith("qt_")) continue;
    SCOPED_TRACE(control->objectName().toStdString());
    ++controls;
    const QPoint place = control->pos();
    control->move(place + (controls % 2 == 0 ? QPoint(2, 0) : QPoint(0, 2)));
    EXPECT_NE(DifferencesFromKept(table, "playing"), "") << "moved";
    control->move(place);
    control->setVisible(false);
    EXPECT_NE(DifferencesFromKept(table, "playing"), "") << "missing";
    control->setVisible(true);
  }
  EXPECT_GT(controls, 100);
}

}  // namespace
}  // namespace Parlino
