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

TEST_F(Mirror, AHigherCardLiesOnALowerOneAfterEveryDeal) {
  for (int deal = 1; deal <= 3; ++deal) {
    PlacePackDeal();
    game.Turn();
    for (int card = 2; card <= CardsInPack; ++card)
      EXPECT_GT(LayerOf(MemberName("Cds", card)), LayerOf(MemberName("Cds", card - 1))) << card;
    BringToFront(Table.Cds[9]);
    BringToFront(Table.Cds[4]);
    game.Turn();
    EXPECT_GT(LayerOf("Cds(4)"), LayerOf("Cds(9)"));
    EXPECT_GT(LayerOf("Cds(9)"), LayerOf("Cds(52)"));
  }
}

TEST_F(Mirror, TheInformationLineStaysReadable) {
  Show(Table.ImgBackP[5]);
  BringToFront(Table.ImgBackP[5]);
  game.Turn();
  EXPECT_GT(LayerOf("InfoVoice"), LayerOf("ImgBackP(5)"));
}

TEST_F(Mirror, APictureGivesItsSizeAndLeavesThePlace) {
  constexpr std::pair<Integer, QSize> sizes[] = {{1, {71, 96}},
                                                 {52, {71, 96}},
                                                 {PictureBackSideways, {96, 71}},
                                                 {PictureBackUpright, {71, 96}}};
  QWidget& card = game.Find("Cds(1)");
  const QPoint place = card.pos();
  for (const auto& [picture, size] : sizes) {
    SetPicture(Table.Cds[1], picture);
    game.Turn();
    EXPECT_EQ(card.size(), size) << picture;
    EXPECT_EQ(card.pos(), place);
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

TEST_F(Mirror, TheListStartsAgainWithEveryHand) {
  const auto& list = dynamic_cast<QListView&>(game.Find("LstCardsPlayed"));
  const auto lines = [&] { return list.model()->rowCount(); };
  for (int line = 1; line <= 20; ++line) AddLine(Table.LstCardsPlayed, {"line ", line});
  game.Turn();
  EXPECT_EQ(lines(), 20);
  EXPECT_EQ(list.indexAt({5, list.viewport()->height() - 5}).row(), 19);
  ClearLines(Table.LstCardsPlayed);
  AddLine(Table.LstCardsPlayed, {"first"});
  game.Turn();
  EXPECT_EQ(lines(), 1);
  EXPECT_EQ(list.model()->index(0, 0).data().toString(), "first");
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
