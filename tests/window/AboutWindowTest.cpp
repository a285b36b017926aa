// The about window.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QTest>

#include "Pictures.h"
#include "WindowGame.h"
#include "table/HelpAndAbout.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

class About : public testing::Test {
 protected:
  About() {
    game.Load();
    Open();
  }
  void Open() {
    ChooseMenu(MenuItem::MnuAbout);
    game.Turn();
    QApplication::setActiveWindow(&Window());
  }
  // A button pressed by its access key takes a moment to be released again.
  bool TurnUntil(const std::function<bool()>& isDone) {
    return QTest::qWaitFor(
        [&] {
          game.Turn();
          return isDone();
        },
        PatienceMs);
  }
  static QWidget& Window() { return WindowGame::Find("frmAbout"); }
  static QWidget& Part(const char* name) { return *Window().findChild<QWidget*>(name); }

  WindowGame game;
};

TEST_F(About, LooksAsKeptAndIsNotModal) {
  ExpectAsKept(Window(), "about");
  EXPECT_EQ(Window().minimumSize(), QSize(382, 237));
  EXPECT_EQ(Window().maximumSize(), QSize(382, 237));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(TableTakesInput());
  for (const QLabel* label : Window().findChildren<QLabel*>())
    EXPECT_LE(label->heightForWidth(label->width()), label->height()) << "does not fit";
}

TEST_F(About, EveryWayOutUnloadsIt) {
  const std::function<void()> waysOut[] = {
      [] { Click(Part("cmdOK")); },
      [] { QTest::keyClick(&Window(), Qt::Key_Return); },
      [] { QTest::keyClick(&Window(), Qt::Key_Escape); },
      [] { QTest::keyClick(&Window(), Qt::Key_O, Qt::AltModifier); },
      [] { EXPECT_FALSE(Window().close()); },
  };
  for (const auto& leave : waysOut) {
    if (!frmAbout.Loaded) Open();
    const QPointer<QWidget> window = &Window();
    leave();
    EXPECT_TRUE(frmAbout.Loaded) << "before the game was asked";
    EXPECT_TRUE(TurnUntil([] { return !frmAbout.Loaded; }));
    game.Turn();
    EXPECT_TRUE(window.isNull());
  }
}

TEST_F(About, EachShowingIsLeftByEnter) {
  game.platform.person = [] {
    if (OpenBox() == nullptr) return;
    ADD_FAILURE() << "the other button was pressed";
    OpenBox()->accept();
  };
  for (const char* focus : {"cmdOK", "cmdSysInfo"}) {
    Part(focus).setFocus();
    Open();
    QTest::keyClick(Window().focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(TurnUntil([] { return !frmAbout.Loaded; }));
    Open();
  }
}

TEST_F(About, SystemInformationIsUnavailable) {
  QString said;
  game.platform.person = [&] {
    if (OpenBox() == nullptr) return;
    said = dynamic_cast<QMessageBox*>(OpenBox())->text();
    OpenBox()->accept();
  };
  QTest::keyClick(&Window(), Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(TurnUntil([&] { return !said.isEmpty(); }));
  EXPECT_EQ(said, "System Information Is Unavailable At This Time");
  EXPECT_TRUE(Window().isVisible());
}

TEST_F(About, GoesWithTheProgram) {
  game.platform.ReplaceFile("ParlinoHelp.rtf", "{\\rtf1 Rules}");
  ChooseMenu(MenuItem::MnuRules);
  game.Turn();
  EXPECT_THROW(UnloadAllForms(), ProgramEnded);
  for (const QWidget* window : QApplication::topLevelWidgets())
    EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
}

}  // namespace
}  // namespace Parlino
