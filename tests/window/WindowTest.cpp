// What holds for the window at any time, and cannot be told in a scene.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QScreen>
#include <QTest>
#include <QTextDocument>

#include "WindowGame.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "table/window/desktop/WindowPlace.h"
#include "table/window/help/DocumentWriter.h"
#include "table/window/painting/Pictures.h"

namespace Parlino {
namespace {

TEST(Window, NoPictureIsMissingAtAnyRatio) {
  const WindowGame game;
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
  }
}

TEST(Window, SaysThatADocumentGoesOn) {
  QTextDocument target;
  WriteDocument({.Blocks = {}, .IsCut = true}, 1, target);
  EXPECT_TRUE(target.toPlainText().startsWith("The document goes on"));
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

TEST(Window, PaintsNothingWithoutAChange) {
  WindowGame game;
  game.Load();
  for (int turn = 1; turn <= 10; ++turn) game.Turn();
  const PaintCounter paints;
  for (int turn = 1; turn <= 10; ++turn) game.Turn();
  EXPECT_EQ(paints.count, 0);
  SetCaption(Table.LblInfo, {"news"});
  game.Turn();
  EXPECT_GT(paints.count, 0);
}

TEST(Window, ThatIsTooLargeIsMadeToFitTheScreen) {
  QWidget window;
  PutInMiddleOfScreen(window, {9'000, 9'000}, *window.screen());
  EXPECT_EQ(window.size(), RoomForWindow(*window.screen()));
}

TEST(Window, OpensWithNothingOnItsWay) {
  WindowGame game;
  game.platform.Motion().Allow(true);
  std::uint32_t toNextFrame = 0;
  game.Run([&] {
    toNextFrame = game.platform.Motion().MsToNextFrame(game.platform.Ticks());
    throw SeenEnough{};
  });
  EXPECT_EQ(toNextFrame, Forever);
}

// Also run on a display with a window manager, whose frames are not the same on all sides.
TEST(Window, OpensInTheMiddleFrameIncluded) {
  WindowGame game;
  game.Load();
  game.platform.ReplaceFile("ParlinoHelp.rtf", "{\\rtf1 Rules}");
  ChooseMenu(MenuItem::MnuRules);
  ChooseMenu(MenuItem::MnuAbout);
  game.Turn();
  for (const char* name : {"FrmMain", "frmHelp", "frmAbout"}) {
    const QWidget& opened = game.Find(name);
    const QPoint middle = opened.screen()->availableGeometry().center();
    const bool isThere = QTest::qWaitFor(
        [&] { return (opened.frameGeometry().center() - middle).manhattanLength() <= 2; },
        PatienceMs);
    EXPECT_TRUE(isThere) << name << " is aside by "
                         << (opened.frameGeometry().center() - middle).y();
  }
}

}  // namespace
}  // namespace Parlino
