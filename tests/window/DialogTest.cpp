// The message dialog: how it looks, and that nothing but its buttons ends it.
#include <gtest/gtest.h>
#include <utility>

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "Pictures.h"
#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

class Dialog : public testing::Test {
 protected:
  Dialog() { game.Load(); }

  // Shows a dialog with two answers. Once it is open the person acts, again and again, until one is
  // chosen.
  Integer Ask(std::function<void()> person, const std::string& prompt = "Shall we?") {
    MessageChoice = -1;
    game.platform.person = [&] {
      if (MFormDeluxe.Visible) person();
    };
    ShowMessage(prompt, "Yes", "No", "", 3, "A question");
    game.platform.person = [] {};
    game.Turn();
    return MessageChoice;
  }

  WindowGame game;
};

// Answers given by typing keys without a pause; -1 if they do not answer.
class DialogKeys : public Dialog {
 protected:
  void SitDown(bool playsByKeys) {
    Click(game.Find("Table"));
    if (playsByKeys) PressKey(Qt::Key_Left);
  }
  Integer AnswerByKeys(Integer answerToMark, std::initializer_list<Qt::Key> keys) {
    return Answer(answerToMark, [keys] {
      for (const Qt::Key key : keys) PressKey(key);
    });
  }
  Integer Answer(Integer answerToMark, const std::function<void()>& act) {
    bool hasActed = false;
    bool isAnswered = true;
    game.platform.person = [&] {
      if (!std::exchange(hasActed, true)) return act();
      isAnswered = false;
      Label1_Click(0);
    };
    ShowMessage("Shall we?", "Yes", "No", "", 3, "A question", answerToMark);
    game.platform.person = [] {};
    return isAnswered ? MessageChoice : Integer{-1};
  }
};

TEST_F(DialogKeys, TakeTheAnswerThatIsMarkedAndNoOther) {
  using enum Qt::Key;
  const struct {
    bool playsByKeys;
    Integer answerToMark;
    std::initializer_list<Qt::Key> keys;
    Integer answer;
  } cases[] = {
      {false, 1, {Key_Return}, -1},
      {false, 1, {Key_Space, Key_Space}, 1},
      {false, 1, {Key_Backtab, Key_Space}, 1},
      {false, 1, {Key_Down, Key_Enter}, 1},
      {false, 1, {Key_Left, Key_Left, Key_Return}, 0},
      {false, 1, {Key_Tab, Key_Tab, Key_Space}, 0},
      {false, 1, {Key_Escape, Key_F2, Key_Y, Key_Return}, -1},
      {false, 0, {Key_Space}, -1},
      {false, 0, {Key_Right, Key_Return}, 0},
      {true, 1, {Key_Return}, 1},
      {true, 1, {Key_Right, Key_Return}, 1},
      {true, 1, {Key_Up, Key_Down, Key_Space}, 1},
      {true, 1, {Key_Tab, Key_Return}, 0},
      {true, 1, {Key_Backtab, Key_Backtab, Key_Return}, 1},
      {true, 1, {Key_Escape}, -1},
      {true, 0, {Key_Enter}, 0},
      {true, 0, {Key_Left, Key_Up, Key_Return}, 0},
  };
  for (const auto& example : cases) {
    SitDown(example.playsByKeys);
    EXPECT_EQ(AnswerByKeys(example.answerToMark, example.keys), example.answer)
        << "case " << &example - cases;
  }
}

// The window stays open when one question directly follows another.
TEST_F(DialogKeys, EachShowingBeginsAtItsOwnAnswer) {
  SitDown(true);
  EXPECT_EQ(AnswerByKeys(0, {Qt::Key_Return}), 0);
  EXPECT_EQ(AnswerByKeys(1, {Qt::Key_Return}), 1);
  EXPECT_EQ(AnswerByKeys(1, {Qt::Key_Tab, Qt::Key_Return}), 0);
  game.Turn();
  EXPECT_FALSE(game.Find("MFormDeluxe").isVisible());
  EXPECT_EQ(AnswerByKeys(1, {Qt::Key_Return}), 1);
  SitDown(false);
  EXPECT_EQ(AnswerByKeys(1, {Qt::Key_Tab, Qt::Key_Return}), 1);
}

TEST_F(DialogKeys, MeanNothingIfDownBeforeOrWithCtrlOrAlt) {
  using enum Qt::Key;
  for (const bool playsByKeys : {true, false}) {
    for (const Qt::Key held : {Key_Return, Key_Enter, Key_Space, Key_Tab, Key_Left}) {
      SitDown(playsByKeys);
      const Integer answer = Answer(1, [held] {
        QKeyEvent again(QEvent::KeyPress, held, Qt::NoModifier, "", true);
        QApplication::sendEvent(QApplication::activeModalWidget()->focusWidget(), &again);
        PressKey(Key_Return);
      });
      EXPECT_EQ(answer, playsByKeys ? 1 : -1) << held;
    }
  }
  SitDown(true);
  const auto captionOfYes = [this]() -> QWidget& { return game.FindMember("Label1", 0); };
  Answer(0, [&] { QTest::keyPress(&captionOfYes(), Key_Space); });
  EXPECT_EQ(Answer(0, [&] { QTest::keyRelease(&captionOfYes(), Key_Space); }), -1);
  EXPECT_EQ(Answer(0, [] { PressKey(Key_Return, Qt::ControlModifier); }), -1);
  EXPECT_EQ(Answer(0, [] { PressKey(Key_Space, Qt::AltModifier); }), -1);
}

TEST_F(DialogKeys, TheMarkIsForThemAlone) {
  const auto picture = [this] { return game.Find("MFormDeluxe").grab().toImage(); };
  QImage plain, first, second;
  SitDown(false);
  Answer(1, [&] {
    plain = picture();
    const QImage face = game.FindMember("Pic1", 1).grab().toImage();
    PressKey(Qt::Key_Tab);
    second = picture();
    EXPECT_EQ(game.FindMember("Pic1", 1).grab().toImage(), face);
    PressKey(Qt::Key_Tab);
    first = picture();
    QTest::mousePress(&game.Find("Label2"), Qt::LeftButton);
    EXPECT_EQ(picture(), plain);
  });
  EXPECT_TRUE(first != plain && second != plain && first != second);
  SitDown(true);
  Answer(1, [&] {
    QApplication::setActiveWindow(&game.Find("MFormDeluxe"));
    EXPECT_EQ(picture(), second) << "opens with the mark";
  });
}

TEST_F(Dialog, NothingElseClosesIt) {
  const std::function<void()> steps[] = {
      [] { PressKey(Qt::Key_Escape); },
      [] { PressKey(Qt::Key_F4, Qt::AltModifier); },
      [] { EXPECT_FALSE(WindowGame::Find("MFormDeluxe").close()); },
      [] { PressKey(Qt::Key_F2); },
      [] { PressKey(Qt::Key_Space); },
      [] { Click(WindowGame::FindMember("Label1", 1)); }};
  const auto* step = std::begin(steps);
  const Integer answer = Ask([&] {
    EXPECT_TRUE(game.Find("MFormDeluxe").isVisible());
    EXPECT_EQ(MessageChoice, -1);
    (*step++)();
  });
  EXPECT_EQ(answer, 1);
  EXPECT_EQ(step, std::end(steps));
}

// The desktop returns the focus to the window that the dialog belongs to.
TEST_F(Dialog, BelongsToTheWindowThatHadTheKeys) {
  game.platform.ReplaceFile("ParlinoHelp.rtf", "{\\rtf1 Rules}");
  const auto ownerWhile = [this](QWidget* active) {
    QApplication::setActiveWindow(active);
    QWindow* owner = nullptr;
    Ask([&] {
      owner = game.Find("MFormDeluxe").windowHandle()->transientParent();
      Click(game.FindMember("Label1", 0));
    });
    return owner;
  };
  QWidget& table = game.Find("FrmMain");
  EXPECT_EQ(ownerWhile(&table), table.windowHandle());
  ChooseMenu(MenuItem::MnuRules);
  game.Turn();
  QWidget& help = game.Find("frmHelp");
  EXPECT_EQ(ownerWhile(&help), help.windowHandle());
  EXPECT_EQ(ownerWhile(nullptr), table.windowHandle());
  help.hide();
  EXPECT_EQ(ownerWhile(&help), table.windowHandle()) << "it goes just now";
}

TEST_F(Dialog, AButtonThatIsPressedMovesItsCaptionAndWaitsForTheClick) {
  int step = 0;
  Ask([&] {
    QWidget& caption = game.FindMember("Label1", 0);
    const QSize face = caption.parentWidget()->size();
    switch (step++) {
      case 0:
        EXPECT_EQ(caption.geometry(), QRect(1, 1, face.width() - 2, face.height() - 2));
        return QTest::mousePress(&caption, Qt::LeftButton);
      case 1:  // the change is not shown until the next turn
        return;
      case 2:
        EXPECT_EQ(caption.geometry(), QRect(2, 2, face.width() - 3, face.height() - 3));
        return QTest::mouseRelease(&caption, Qt::LeftButton, {}, QPoint(-50, -50));
      default:
        EXPECT_EQ(MessageChoice, -1);
        return Click(caption);
    }
  });
}

TEST_F(Dialog, EverythingStandsWhereTheModelSays) {
  for (const std::size_t length : {10U, 400U, 20'000U}) {
    const auto look = [&] {
      const auto boxOf = [](const DialogBox& box) {
        return ToPixels(box.Left, box.Top, box.Width, box.Height);
      };
      const QWidget& dialog = game.Find("MFormDeluxe");
      const QWidget& prompt = game.Find("Label2");
      EXPECT_EQ(dialog.size(), QSize(300, prompt.height() + 76));
      EXPECT_LT(dialog.height(), dialog.screen()->size().height()) << "no button is to be seen";
      EXPECT_EQ(prompt.geometry(), boxOf(MFormDeluxe.Label2Place));
      EXPECT_EQ(prompt.toolTip().isEmpty(), length < 1000) << "cut short or not";
      EXPECT_EQ(game.Find("Label3").geometry(), QRect(3, 4, 294, 20));
      EXPECT_EQ(game.Find("Picture1").geometry(), boxOf(MFormDeluxe.Picture1));
      for (const int answer : {0, 1})
        EXPECT_EQ(game.FindMember("Pic1", answer).geometry(),
                  boxOf(MFormDeluxe.Faces[answer].Pic1));
      EXPECT_FALSE(game.FindMember("Pic1", 2).isVisible());
      if (length < 100) ExpectAsKept(game.Find("MFormDeluxe"), "dialog");
      Click(game.FindMember("Label1", 0));
    };
    Ask(look, std::string(length, 'x'));
  }
}

}  // namespace
}  // namespace Parlino
