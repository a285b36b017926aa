// The text-input box and the plain message box.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProxyStyle>

#include "WindowGame.h"
#include "engine/state/GameState.h"

namespace Parlino {
namespace {

// A desktop that puts icons on the buttons of boxes.
class PictureStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

class Boxes : public testing::Test {
 protected:
  Boxes() { game.Load(); }
  WindowGame game;
};

TEST_F(Boxes, TheNameIsAskedForWithTheDefaultSelected) {
  game.platform.person = [] {
    auto* box = qobject_cast<QInputDialog*>(OpenBox());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowTitle(), "Enter name of West Bot");
    EXPECT_GE(box->width(), 360) << "the title must not be cut";
    EXPECT_EQ(box->labelText(), "Replace West Robot with name of your choice?");
    EXPECT_EQ(box->findChild<QLineEdit*>()->selectedText(), "West Bot");
    box->setTextValue("Ren\u00e9 & Co");
    PressKey(Qt::Key_Return);
  };
  PressKey(Qt::Key_B, Qt::ControlModifier);
  game.Turn();
  game.platform.person = [] {};
  game.Turn();
  EXPECT_EQ(SeatNames[West], "Ren\u00e9 & Co");
  EXPECT_EQ(game.FindMember("LblName", West).property("text").toString(),
            "Ren\u00e9 & Co- Welcome Player");
}

TEST_F(Boxes, CancelAndEscapeAnswerWithEmptyText) {
  game.platform.person = [] { PressKey(Qt::Key_Escape); };
  EXPECT_EQ(game.platform.InputBox("prompt", "title", "default"), "");
  game.platform.person = [] { OpenBox()->reject(); };
  EXPECT_EQ(game.platform.InputBox("prompt", "title", "default"), "");
  game.platform.person = [] { OpenBox()->accept(); };
  EXPECT_EQ(game.platform.InputBox("prompt", "title", "default"), "default");
}

TEST_F(Boxes, AMessageShowsItsTextAsItStands) {
  for (const bool isCritical : {false, true}) {
    game.platform.person = [isCritical] {
      const auto* box = qobject_cast<QMessageBox*>(OpenBox());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->text(), "<b>1 & 2</b>\nnext line");
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->icon(), isCritical ? QMessageBox::Critical : QMessageBox::NoIcon);
      PressKey(Qt::Key_Return);
    };
    game.platform.MsgBox("<b>1 & 2</b>\nnext line", "Parlino", isCritical);
    EXPECT_EQ(OpenBox(), nullptr);
  }
}

TEST_F(Boxes, HaveBareButtonsOnEveryDesktop) {
  const QString style = QApplication::style()->name();
  QApplication::setStyle(new PictureStyle);
  QStringList captions;
  game.platform.person = [&captions] {
    for (const QAbstractButton* button : OpenBox()->findChildren<QAbstractButton*>()) {
      EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
      captions.append(button->text());
    }
    OpenBox()->accept();
  };
  game.platform.InputBox("prompt", "title", "default");
  game.platform.MsgBox("text", "title", true);
  captions.sort();
  EXPECT_EQ(captions, QStringList({"Cancel", "OK", "OK"}));
  QApplication::setStyle(style);
}

TEST_F(Boxes, WhatWasClickedBeforeTheBoxOpenedIsDropped) {
  PressKey(Qt::Key_F1);  // opens the box
  Click(game.Find("CmdDontShow"));
  game.platform.person = [] { OpenBox()->accept(); };
  game.Turn();
  EXPECT_EQ(HideWelcome, False);
}

}  // namespace
}  // namespace Parlino
