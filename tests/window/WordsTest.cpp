// Everything that the window has words for: the menus with their keys, the tips, and what assistive
// tools find, in the order in which they find it. Compared as a whole with a text that is kept.
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMetaEnum>

#include "PersonAtWindow.h"
#include "Pictures.h"
#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

class Words : public testing::Test {
 protected:
  void TellMenus(const QString& indent, const QList<QAction*>& entries) {
    for (const QAction* entry : entries) {
      lines << indent + (entry->text() + "  " + entry->shortcut().toString()).trimmed();
      if (entry->menu() != nullptr) TellMenus(indent + "  ", entry->menu()->actions());
    }
  }

  void TellTips() {
    for (const QWidget* widget : game.Find("FrmMain").findChildren<QWidget*>())
      if (!widget->toolTip().isEmpty())
        lines << "tip of " + widget->objectName() + ": " + widget->toolTip();
  }

  void TellVoices(const QString& when, const QString& window) {
    lines << ""
          << "# " + when;
    TellVoice(VoiceOf(window));
    std::set<std::pair<int, QString>> known;  // a text and the label beside it may be called alike
    for (const Voice voice : VoicesIn(VoiceOf(window))) {
      TellVoice(voice);
      const QString name = NameOf(voice);
      EXPECT_TRUE(name.isEmpty() || known.emplace(voice->role(), name).second)
          << name.toStdString() << " is said twice: " << when.toStdString();
    }
  }

  void ExpectAsKept() {
    const std::string path = PARLINO_PICTURE_FOLDER "/words.txt";
    std::string text = lines.join("\n").toStdString() + "\n";
    if (picturesAreAccepted) {
      std::ofstream(path) << text;
      return;
    }
    std::ifstream kept(path);
    std::istringstream actual(text);
    int number = 0;
    for (std::string line, expected; std::getline(actual, line);) {
      std::getline(kept, expected);
      ASSERT_EQ(line, expected) << "line " << ++number << " of " << path;
    }
    EXPECT_EQ(kept.peek(), EOF);
  }

  WindowGame game;
  QStringList lines;

 private:
  // Qt's own objects that only contain others say nothing.
  void TellVoice(Voice voice) {
    const QString role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(voice->role());
    const QString more = voice->text(QAccessible::Description);
    const QString state = voice->state().focused ? " (focused)" : "";
    if (!NameOf(voice).isEmpty() || !more.isEmpty() || role == "Button")
      lines << role + " '" + NameOf(voice) + "'" + state + (more.isEmpty() ? more : ": " + more);
  }
};

TEST_F(Words, OfTheWindowsAreAsKept) {
  game.platform.ReplaceFile("ParlinoHelp.rtf", "{\\rtf1 Follow suit.}");
  TellMenus("", game.Find("FrmMain").findChild<QMenuBar*>()->actions());
  PersonAtWindow person(PersonAtWindow::Means::AssistiveTools);
  std::set<QString> told;
  const auto tellOnce = [&](const QString& when, const QString& window) {
    if (told.insert(when).second) TellVoices(when, window);
  };
  const int status = game.Run([&] {
    if (const QDialog* box = OpenBox(); box != nullptr && box->objectName() != "MFormDeluxe") {
      OpenBox()->setObjectName("box");
      tellOnce("the name is asked for", "box");
      return OpenBox()->accept();
    }
    if (MFormDeluxe.Visible) {
      tellOnce("the hand is scored", "MFormDeluxe");
    } else if (Table.FramBids.Visible) {
      if (told.contains("the bidding")) return person.Act();
      TellTips();
      tellOnce("the bidding", "FrmMain");
      ChooseMenu(MenuItem::MnuAbout);
      ChooseMenu(MenuItem::MnuRules);
      ChooseMenu(MenuItem::MnuPname);
      return;
    } else if (HandInProgress && TrickNumber == 1) {
      tellOnce("the rules", "frmHelp");
      tellOnce("about", "frmAbout");
    } else if (TrickNumber == 3 && PlayerTurn == True) {
      tellOnce("the third trick", "FrmMain");
    }
    tellOnce("the start", "FrmMain");
    person.Act();
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(person.cards, TricksInHand);
  EXPECT_EQ(told.size(), 7U);
  ExpectAsKept();
}

}  // namespace
}  // namespace Parlino
