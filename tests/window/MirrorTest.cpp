// The widgets follow the model: order, pictures, and nothing drawn without a change.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QListView>

#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"
#include "table/window/painting/Named.h"
#include "table/window/painting/Pictures.h"

namespace Parlino {
namespace {

class Mirror : public testing::Test {
 protected:
  Mirror() { game.Load(); }

  qsizetype LayerOf(const QString& name) {
    return game.Find("Table").children().indexOf(&game.Find(name));
  }

  WindowGame game;
};

TEST_F(Mirror, WhatIsBroughtToTheFrontLiesInFrontExceptOfTheInformationLine) {
  for (int deal = 1; deal <= 2; ++deal) {
    PlacePackDeal();
    game.Turn();
    for (int card = 2; card <= CardsInPack; ++card)
      EXPECT_GT(LayerOf(MemberName("Cds", card)), LayerOf(MemberName("Cds", card - 1))) << card;
    BringToFront(Table.Cds[9]);
    BringToFront(Table.Cds[4]);
    game.Turn();
    EXPECT_GT(LayerOf("Cds(4)"), LayerOf("Cds(9)"));
    EXPECT_GT(LayerOf("Cds(9)"), LayerOf("Cds(52)"));
    EXPECT_GT(LayerOf("InfoVoice"), LayerOf("Cds(4)"));
  }
}

TEST_F(Mirror, NoPictureIsMissingAtAnyRatio) {
  const auto hasPixels = [](const QPixmap& picture) {
    const QImage image = picture.toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2).alpha() > 0;
  };
  for (const qreal ratio : {1.0, 1.5, 2.0}) {
    for (Integer picture = 1; picture <= PictureSpades; ++picture) {
      EXPECT_TRUE(hasPixels(CardPicture(picture, ratio))) << picture;
      EXPECT_EQ(CardPicture(picture, ratio).deviceIndependentSize().toSize(), PictureSize(picture));
    }
    for (const int number : {1, 2, 3}) EXPECT_TRUE(hasPixels(MessagePicture(number, ratio)));
    EXPECT_TRUE(hasPixels(SmallBack(ratio)));
  }
  EXPECT_TRUE(hasPixels(IconPicture(48)));
}

TEST_F(Mirror, TheListCanBeCopiedFromWithoutALineChosen) {
  game.Find("LstCardsPlayed").setFocus();
  PressKey(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_FALSE(dynamic_cast<QListView&>(game.Find("LstCardsPlayed")).currentIndex().isValid());
}

// Counts what is painted in the window and all its children.
class PaintCounter : public QObject {
 public:
  PaintCounter() { QCoreApplication::instance()->installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

TEST_F(Mirror, NothingIsPaintedWithoutAChange) {
  for (int turn = 1; turn <= 10; ++turn) game.Turn();
  const PaintCounter paints;
  for (int turn = 1; turn <= 10; ++turn) game.Turn();
  EXPECT_EQ(paints.count, 0);
  SetCaption(Table.LblInfo, {"news"});
  game.Turn();
  EXPECT_GT(paints.count, 0);
}

}  // namespace
}  // namespace Parlino
