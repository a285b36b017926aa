// Whole hands, played only through the widgets.
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QListView>

#include "WindowGame.h"
#include "engine/RoundDriver.h"
#include "engine/state/GameState.h"
#include "engine/state/Questions.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

// Plays by what can be seen, and leaves through "Save and Exit" when the hand has been scored.
struct Person {
  CardClicker cards;
  bool hasStarted = false;
  int bids = 0;

  void Act() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != nullptr) {
      Click(WindowGame::FindMember("Label1", 1));
    } else if (!hasStarted) {
      hasStarted = true;
      PressKey(Qt::Key_F2);
    } else if (WindowGame::Find("FramBids").isVisible()) {
      ++bids;
      Click(WindowGame::FindMember("LblBids", 3));
    } else {
      cards.ClickNext();
    }
  }
};

TEST(Play, AWholeHandCanBePlayedByMouse) {
  WindowGame game;
  Person person;
  int mostLines = 0;
  const int status = game.Run([&] {
    const auto& list = dynamic_cast<QListView&>(game.Find("LstCardsPlayed"));
    mostLines = std::max(mostLines, list.model()->rowCount());
    if (mostLines > 0) {
      EXPECT_TRUE(list.viewport()->rect().intersects(
          list.visualRect(list.model()->index(list.model()->rowCount() - 1, 0))));
    }
    person.Act();
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(mostLines, 65);
  EXPECT_GE(person.bids, 1);
  EXPECT_EQ(TrickNumber, 13);
  EXPECT_NE(game.platform.ReadFile("SaveGame.dat"), "0,0,#FALSE#\r\n");
}

// Wherever a hand is abandoned, a new one starts, and the program can be left.
enum class Moment { WhileDealing, BeforeTheBid, BeforeTheCard };

void PrintTo(Moment moment, std::ostream* out) {
  constexpr const char* names[] = {"while dealing", "before the bid", "before the card"};
  *out << names[static_cast<int>(moment)];
}

bool HasCome(Moment moment) {
  switch (moment) {
    case Moment::WhileDealing:
      return HandInProgress && TrumpSuit == -1 && Table.Cds[1].Picture != 0;
    case Moment::BeforeTheBid:
      return WindowGame::Find("FramBids").isVisible();
    default:
      return PlayerTurn == True;
  }
}

class Interruption : public testing::TestWithParam<Moment> {};

TEST_P(Interruption, NewGameDealsAfresh) {
  WindowGame game;
  Person person;
  int pressed = 0;
  const int status = game.Run([&] {
    if (person.hasStarted && pressed < 3 && HasCome(GetParam())) {
      ++pressed;
      PressKey(Qt::Key_F2);
      return;
    }
    if (pressed == 3 && PlayerTurn == True) throw SeenEnough{};
    person.Act();
  });
  EXPECT_EQ(status, -1);
  EXPECT_EQ(pressed, 3);
}

TEST_P(Interruption, ExitEndsTheProgram) {
  WindowGame game;
  Person person;
  bool hasLeft = false;
  const int status = game.Run([&] {
    if (QApplication::activeModalWidget() != nullptr) {
      Click(game.FindMember("Label1", 0));
    } else if (person.hasStarted && !hasLeft && HasCome(GetParam())) {
      hasLeft = true;
      PressKey(Qt::Key_X, Qt::ControlModifier);
    } else {
      person.Act();
    }
  });
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(hasLeft);
  EXPECT_FALSE(game.Find("FrmMain").isVisible());
}

INSTANTIATE_TEST_SUITE_P(AtAnyMoment, Interruption,
                         testing::Values(Moment::WhileDealing, Moment::BeforeTheBid,
                                         Moment::BeforeTheCard));

}  // namespace
}  // namespace Parlino
