// The window on small screens, beside other windows, and on desktops with their own colours and
// fonts.
#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

#include "WindowGame.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "table/window/ScrolledTable.h"

namespace Parlino {
namespace {

class DesktopWindow : public testing::Test {
 protected:
  DesktopWindow() {
    game.Load();
    Show(Table.FramBids);
    Show(Table.FramScores);
    game.Turn();
  }

  WindowGame game;
  QWidget& window = game.Find("FrmMain");
  QWidget& table = game.Find("Table");
  ScrolledTable& room = *window.findChild<ScrolledTable*>();
};

TEST_F(DesktopWindow, FitsTheScreenAndScrollsOnlyWhereItMust) {
  const struct {
    QSize screen;
    bool sideways, upright;
  } cases[] = {{{2000, 1500}, false, false}, {window.size(), false, false},
               {{1022, 560}, false, true},   {{798, 440}, false, true},
               {{700, 984}, true, false},    {{638, 440}, true, true}};
  for (const auto& [screen, sideways, upright] : cases) {
    window.resize(room.WindowSize(window.size() - room.size(), screen));
    game.Turn();
    EXPECT_EQ(room.horizontalScrollBar()->isVisible(), sideways) << screen.width();
    EXPECT_EQ(room.verticalScrollBar()->isVisible(), upright) << screen.width();
    const int lowest = table.mapTo(room.viewport(), table.rect().bottomLeft()).y();
    EXPECT_LT(lowest, room.viewport()->height()) << "the hand is out of sight";
  }
}

TEST_F(DesktopWindow, TheTableKeepsItsSizeAndPlaceWhenTheWindowGrows) {
  const QPoint place = table.mapTo(&window, QPoint());
  EXPECT_EQ(window.size(), table.size() + QSize(0, place.y()));
  window.resize(1000, 900);
  game.Turn();
  EXPECT_EQ(table.mapTo(&window, QPoint()), place);
  EXPECT_EQ(table.size(), QSize(784, 635));
}

TEST_F(DesktopWindow, TheFocusIsBroughtIntoSight) {
  window.resize(500, 200);
  for (const char* name : {"CmdDontShow", "LblBids(1)", "LstCardsPlayed", "LblBids(12)"}) {
    QWidget& control = game.Find(name);
    control.setFocus();
    const QRect place(control.mapTo(room.viewport(), QPoint()), control.size());
    EXPECT_TRUE(room.viewport()->rect().contains(place)) << name;
  }
}

// A menu of theirs would run an event loop of its own, in which the game stands still.
TEST_F(DesktopWindow, TheScrollBarsHaveNoMenu) {
  for (const QWidget* bar : {room.horizontalScrollBar(), room.verticalScrollBar()})
    EXPECT_EQ(bar->contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_F(DesktopWindow, ThePageKeysScrollWhereverTheFocusIs) {
  window.resize(500, 300);
  game.Turn();
  for (const auto& [bar, shift] : {std::pair(room.verticalScrollBar(), Qt::NoModifier),
                                   {room.horizontalScrollBar(), Qt::ShiftModifier}}) {
    bar->setValue(bar->maximum());
    PressKey(Qt::Key_PageUp, shift);
    EXPECT_LT(bar->value(), bar->maximum());
    PressKey(Qt::Key_PageDown, shift);
    EXPECT_EQ(bar->value(), bar->maximum());
  }
}

// Otherwise it would slip away from under the mouse, and the click would be lost.
TEST_F(DesktopWindow, AControlThatIsPressedStaysWhereItIs) {
  window.resize(640, 240);
  game.Turn();
  QWidget& button = game.Find("LblBids(13)");
  room.verticalScrollBar()->setValue(button.mapTo(&table, QPoint(0, 10)).y());
  const QPoint spot = button.mapTo(&window, QPoint(12, 18));
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, spot);
  game.Turn();
  EXPECT_TRUE(button.hasFocus());
  EXPECT_EQ(button.mapTo(&window, QPoint(12, 18)), spot);
}

// Only the status bar and the scroll bars take the desktop's colours.
TEST_F(DesktopWindow, NothingOnTheTableIsRecolouredByADarkDesktop) {
  const QPalette light = QApplication::palette();
  const QFont font = QApplication::font();
  window.resize(1000, 900);
  const auto picture = [&] {
    game.Turn();
    const QSize size(table.width(), game.Find("StatusBar1").y());
    return window.grab({table.mapTo(&window, QPoint()), size}).toImage();
  };
  const QImage before = picture();
  QApplication::setPalette(QPalette(QColor(40, 44, 48), QColor(35, 38, 41)));
  QApplication::setFont(QFont("DejaVu Sans", 24));
  const QImage after = picture();
  QApplication::setPalette(light);
  QApplication::setFont(font);
  EXPECT_TRUE(before == after);
}

// Also run on a display with a window manager, whose frames are not the same on all sides.
TEST_F(DesktopWindow, EveryWindowOpensInTheMiddleFrameIncluded) {
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

// As windows of their own, they would leave lines behind moving cards at fractional scales.
TEST_F(DesktopWindow, ABoxMakesNoWindowsOfThePartsOfTheTable) {
  game.platform.person = [] { OpenBox()->accept(); };
  game.platform.InputBox("prompt", "title", "default");
  EXPECT_EQ(room.windowHandle(), nullptr);
}

}  // namespace
}  // namespace Parlino
