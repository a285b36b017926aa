// The message dialog: how it looks, and that only its buttons end it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>

#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/MessageDialog.h"
#include "table/window/Design.h"

namespace Parlino {
namespace {

class Dialog : public testing::Test {
 protected:
  Dialog() { game.Load(); }

  // Shows a dialog with two answers; the person acts once the dialog is up, until one is chosen.
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

TEST_F(Dialog, AnswersAreClicked) {
  for (const Integer answer : std::initializer_list<Integer>{0, 1}) {
    EXPECT_EQ(Ask([&] { Click(game.FindMember("Label1", answer)); }), answer);
    EXPECT_FALSE(game.Find("MFormDeluxe").isVisible());
  }
}

TEST_F(Dialog, EnterIsTheFirstAnswerAndTabReachesTheSecond) {
  EXPECT_EQ(Ask([] { PressKey(Qt::Key_Return); }), 0);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
    EXPECT_EQ(Ask([key] {
                PressKey(Qt::Key_Tab);
                PressKey(Qt::Key_Tab);
                PressKey(key);
              }),
              1);
  }
}

TEST_F(Dialog, NothingElseClosesIt) {
  int step = 0;
  const Integer answer = Ask([&] {
    QWidget& dialog = game.Find("MFormDeluxe");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(MessageChoice, -1);
    switch (step++) {
      case 0:
        return PressKey(Qt::Key_Escape);
      case 1:
        return PressKey(Qt::Key_F4, Qt::AltModifier);
      case 2:
        EXPECT_FALSE(dialog.close());
        return;
      case 3:
        return PressKey(Qt::Key_F2);
      case 4:
        return PressKey(Qt::Key_Space);
      default:
        return Click(game.FindMember("Label1", 1));
    }
  });
  EXPECT_EQ(answer, 1);
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
      case 1:  // shown with the next change
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
  const std::string words = "many words that fill some lines of the dialog ";
  for (const int times : {1, 3, 8}) {
    std::string prompt;
    for (int time = 0; time < times; ++time) prompt += words;
    Ask(
        [&] {
          const auto boxOf = [](const DialogBox& box) {
            return ToPixels(box.Left, box.Top, box.Width, box.Height);
          };
          const auto& prompter = dynamic_cast<QLabel&>(game.Find("Label2"));
          const QWidget& dialog = game.Find("MFormDeluxe");
          EXPECT_EQ(dialog.size(), QSize(300, prompter.height() + 76));
          EXPECT_EQ(prompter.geometry(), boxOf(MFormDeluxe.Label2Place));
          EXPECT_EQ(prompter.toolTip(), "") << "the prompt is cut short";
          EXPECT_EQ(game.Find("Label3").geometry(), QRect(3, 4, 294, 20));
          EXPECT_EQ(game.Find("Picture1").geometry(), boxOf(MFormDeluxe.Picture1));
          for (const int answer : {0, 1})
            EXPECT_EQ(game.FindMember("Pic1", answer).geometry(),
                      boxOf(MFormDeluxe.Faces[answer].Pic1));
          EXPECT_FALSE(game.FindMember("Pic1", 2).isVisible());
          Click(game.FindMember("Label1", 0));
        },
        prompt);
  }
}

TEST_F(Dialog, APromptWithoutEndLeavesTheButtonsOnTheScreen) {
  Ask(
      [&] {
        const QWidget& dialog = game.Find("MFormDeluxe");
        EXPECT_LT(dialog.height(), dialog.screen()->size().height());
        Click(game.FindMember("Label1", 0));
      },
      std::string(20000, 'x'));
}

}  // namespace
}  // namespace Parlino
