// The help window: reading, finding, sizes and the ways to close it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QWheelEvent>

#include "Pictures.h"
#include "WindowGame.h"
#include "table/HelpAndAbout.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

class Help : public testing::Test {
 protected:
  Help() { game.Load(); }

  void Open(const std::string& text) {
    game.platform.ReplaceFile("ParlinoHelp.rtf", "{\\rtf1 " + text + "}");
    ChooseMenu(MenuItem::MnuRules);
    game.Turn();
    game.Turn();
    QApplication::setActiveWindow(&Window());
  }
  void OpenLong() {
    std::string text = "Aces ";
    for (int line = 0; line < 300; ++line) text += "\\par line " + std::to_string(line);
    Open(text + "\\par Kings \\par aces again");
  }
  static QWidget& Window() { return WindowGame::Find("frmHelp"); }
  static QTextEdit& Text() { return dynamic_cast<QTextEdit&>(WindowGame::Find("rtbHelp")); }
  static QString Note() { return WindowGame::Find("FindNote").property("text").toString(); }
  static int LetterSize() {
    return Text().document()->firstBlock().begin().fragment().charFormat().font().pixelSize();
  }
  // Sends the key to whatever has the focus, as a keyboard does.
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(Window().focusWidget(), key, modifiers);
  }

  WindowGame game;
};

TEST_F(Help, IsNotModalAndGrowsWithItsText) {
  Open("Rules");
  EXPECT_EQ(Window().size(), QSize(680, 650));
  EXPECT_EQ(Text().geometry(), QRect(0, 0, 649, 589));
  EXPECT_EQ(game.Find("btnClose").geometry(), QRect(272, 608, 81, 25));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(TableTakesInput());
  for (const QSize size : {QSize(900, 800), QSize(500, 300)}) {
    Window().resize(size);
    EXPECT_EQ(Text().size(), size - QSize(31, 61));
    EXPECT_EQ(game.Find("btnClose").geometry().bottom(), size.height() - 650 + 632);
    EXPECT_LT(game.Find("FindLine").geometry().right(), game.Find("btnClose").x());
  }
}

TEST_F(Help, LaysOutParagraphsAndTables) {
  Open(
      "{\\b Rules}\\par\\qc in the middle\\par\\pard\\li720\\fi-360\\bullet\\tab a "
      "point\\par\\pard "
      "\\trowd\\trgaph100\\cellx3000\\cellx6000\\intbl one\\cell two\\cell\\row "
      "\\trowd\\cellx6000\\intbl wide\\cell\\row\\pard after");
  ExpectAsKept(Window(), "help");
}

// However it was left, and even if it is still open, the next showing is read by the keys from the
// top.
TEST_F(Help, EveryWayOutHidesItAndTheTextComesAfresh) {
  const auto openFindLine = [] { Press(Qt::Key_F, Qt::ControlModifier); };
  const auto focusButton = [] { WindowGame::Find("btnClose").setFocus(); };
  const std::pair<bool, std::function<void()>> ways[] = {
      {true, [] { Click(WindowGame::Find("btnClose")); }},
      {true, [] { Press(Qt::Key_Escape); }},
      {true, [] { Press(Qt::Key_C, Qt::AltModifier); }},
      {true, [=] { focusButton(), Press(Qt::Key_Return); }},
      {true, [=] { openFindLine(), Window().close(); }},
      {false, [] {}},
      {false, openFindLine},
      {false, focusButton}};
  for (const auto& [isOut, leave] : ways) {
    OpenLong();
    const QWidget* window = &Window();
    EXPECT_EQ(Window().focusWidget(), &Text());
    EXPECT_FALSE(game.Find("FindLine").isVisible());
    EXPECT_EQ(Text().verticalScrollBar()->value(), 0);
    EXPECT_TRUE(Text().toPlainText().startsWith("Aces"));
    Press(Qt::Key_PageDown);
    EXPECT_GT(Text().verticalScrollBar()->value(), 0);
    Press(Qt::Key_Return);
    game.Turn();
    EXPECT_TRUE(frmHelp.Visible);
    leave();
    if (isOut) {
      EXPECT_TRUE(QTest::qWaitFor([&] { return game.Turn(), !frmHelp.Visible; }, PatienceMs));
    }
    game.Turn();
    EXPECT_EQ(Window().isVisible(), !isOut);
    EXPECT_EQ(&Window(), window) << "only hidden";
    Open("Rules");
    EXPECT_EQ(Text().toPlainText(), "Rules");
  }
}

TEST_F(Help, IsReadSelectedAndCopiedButNotEdited) {
  OpenLong();
  const QString text = Text().toPlainText();
  EXPECT_EQ(Text().verticalScrollBar()->value(), 0);
  for (const Qt::Key key : {Qt::Key_X, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete})
    Press(key);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text().toPlainText(), text);
  Press(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().trimmed(), "Aces");
  Press(Qt::Key_End);
  EXPECT_EQ(Text().verticalScrollBar()->value(), Text().verticalScrollBar()->maximum());
  EXPECT_EQ(Text().textCursor().selectedText().trimmed(), "Aces");
}

TEST_F(Help, FindsWordsInBothDirectionsAndRoundTheEnds) {
  OpenLong();
  Press(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(Window().focusWidget(), "aces");
  const int last = Text().document()->lastBlock().position();
  const auto found = [] { return Text().textCursor().selectionStart(); };
  EXPECT_EQ(found(), 0);
  Press(Qt::Key_Return);
  EXPECT_EQ(found(), last);
  EXPECT_GT(Text().verticalScrollBar()->value(), 0);
  EXPECT_EQ(Note(), "");
  Press(Qt::Key_F3);
  EXPECT_EQ(found(), 0);
  EXPECT_NE(Note(), "");
  Press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(found(), last);
  QTest::keyClicks(Window().focusWidget(), "x");
  EXPECT_EQ(Note(), "Nothing found");
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Note(), "");
  Press(Qt::Key_Escape);
  game.Turn();
  EXPECT_FALSE(game.Find("FindLine").isVisible());
  EXPECT_TRUE(frmHelp.Visible) << "Esc closes the line first";
  EXPECT_TRUE(Text().hasFocus());
}

TEST_F(Help, ZoomsAndKeepsThePlace) {
  OpenLong();
  EXPECT_EQ(LetterSize(), 16);
  Text().verticalScrollBar()->setValue(Text().verticalScrollBar()->maximum() / 2);
  const auto top = [] { return Text().cursorForPosition({30, 0}).block().text(); };
  const QString before = top();
  Press(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_GT(LetterSize(), 16);
  EXPECT_EQ(top(), before);
  const auto turnWheel = [](int angle) {
    QWheelEvent turn({50, 50}, Text().mapToGlobal(QPointF(50, 50)), {}, {0, angle}, Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Text().viewport(), &turn);
  };
  turnWheel(60);
  turnWheel(60);
  EXPECT_EQ(LetterSize(), 20);
  turnWheel(-12000);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(LetterSize(), 8);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(LetterSize(), 16);
  EXPECT_EQ(top(), before);
}

TEST_F(Help, IsReadableOnADarkDesktop) {
  const QPalette usual = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(40, 40, 40)));
  Open("Rules");
  const QWidget* parts[] = {&Text(), &game.Find("FindWords"), &game.Find("btnClose")};
  for (const QWidget* part : parts) {
    const QPalette colours = part->palette();
    EXPECT_GT(colours.base().color().lightness(), colours.text().color().lightness() + 150);
    EXPECT_GT(colours.button().color().lightness(), colours.buttonText().color().lightness() + 150);
  }
  QApplication::setPalette(usual);
}

}  // namespace
}  // namespace Parlino
