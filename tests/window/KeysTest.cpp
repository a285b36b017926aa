// The game played with the keys: whole games, and where the focus is meanwhile.
#include <gtest/gtest.h>
#include <utility>

#include <QApplication>
#include <QListView>
#include <QTest>
#include <QWindow>

#include "PersonAtWindow.h"
#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

QWidget* Focus() {
  return WindowGame::Find("FrmMain").focusWidget();
}

std::string FocusName() {
  return Focus() == nullptr ? std::string() : Focus()->objectName().toStdString();
}

TEST(Keys, PlayAWholeGame) {
  WindowGame game;
  PersonAtWindow person(PersonAtWindow::Means::Keys);
  person.chooseAnswer = [] {
    return QApplication::activeModalWidget()->windowTitle() == "Game Over" ? 1 : 0;
  };
  EXPECT_EQ(game.Run([&] { person.Act(); }), 0);
  EXPECT_GE(person.answers, 3);
  EXPECT_EQ(GamesPlayed, 1);
  EXPECT_EQ(game.platform.ReadFile("SaveGame.dat"), "0,0,#FALSE#\r\n");
}

// The place of the focused card in the Player's row, 1 for the first; 0 if none has the focus.
int PlaceOfFocus() {
  const CardSet row = PlayersRow();
  for (const Integer card : row)
    if (&WindowGame::FindMember("Cds", card) == Focus()) return row.Between(1, card).Count();
  return 0;
}

// While the panel is open the focus is in it. Afterwards it is on a card of the hand: at the same
// place in the row when the card there has been played, or at the end of a row that has become
// shorter.
TEST(Keys, TheFocusIsWhereThePlayerNeedsIt) {
  WindowGame game;
  PersonAtWindow person(PersonAtWindow::Means::Keys);
  int played = 0;
  int placeBefore = 1;
  game.Run([&] {
    if (QApplication::activeModalWidget() != nullptr) throw SeenEnough{};
    EXPECT_TRUE(game.Find("FramBids").isHidden() || FocusName() == "LblBids(1)");
    if (PlayerTurn == False) return person.Act();
    EXPECT_EQ(PlaceOfFocus(), std::min<int>(placeBefore, PlayersRow().Count())) << played;
    // Moves to a different place for each card, including the two ends.
    if (++played % 3 == 0) PressKey(Qt::Key_End);
    if (played % 5 == 0) PressKey(Qt::Key_Home);
    PressKey(Qt::Key_Up);
    placeBefore = PlaceOfFocus();
    EXPECT_TRUE(game.Find("FocusMark").isVisible());
    PressKey(Qt::Key_Return);
  });
  EXPECT_EQ(played, 13);
}

std::string raised;

class TableKeysTest : public testing::Test {
 protected:
  TableKeysTest() {
    game.Load();
    raised.clear();
    Events.Cds_Click = [](Integer card) { raised += "card " + std::to_string(card) + " "; };
    Events.LblBids_Click = [](Integer tricks) { raised += "bid " + std::to_string(tricks) + " "; };
    for (auto& handler : Events.MenuClick) handler = [] {};
    PlacePackDeal();
    for (const int card : {5, 18, 31, 44}) Pack[card].Owner = Player;
    ShowPlayerHand();
    Hide(Table.CmdDontShow);
    TrumpSuit = Clubs;
    game.Turn();
  }

  void Press(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) PressKey(key);
    game.Turn();
  }
  void Open(Control& control, bool opens = true) {
    SetVisible(control, opens);
    game.Turn();
  }

  WindowGame game;
  QWidget& mark = game.Find("FocusMark");
};

TEST_F(TableKeysTest, RaiseTheEventsOfTheMouseAndNoOthers) {
  Press({Qt::Key_Right, Qt::Key_Up, Qt::Key_S, Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_7});
  EXPECT_EQ(raised, "");
  EXPECT_EQ(FocusName(), "Cds(31)");
  Press({Qt::Key_Return, Qt::Key_C, Qt::Key_Space, Qt::Key_Enter});
  EXPECT_EQ(raised, "card 31 card 18 card 18 ");
}

TEST_F(TableKeysTest, NothingIsPlayedOrBidThatWasNotMarked) {
  for (const bool isBidding : {false, true}) {
    Open(Table.FramBids, isBidding);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
      Click(game.Find("Table"));
      Press({key});
      EXPECT_EQ(raised, "") << isBidding;
    }
  }
  // A button that was pressed with the mouse, which was then released elsewhere.
  Press({Qt::Key_Right});
  QWidget& eleven = game.Find("LblBids(11)");
  QTest::mousePress(&eleven, Qt::LeftButton);
  QTest::mouseRelease(&eleven, Qt::LeftButton, {}, {-50, 0});
  eleven.setFocus();
  Press({Qt::Key_Left, Qt::Key_Return});
  EXPECT_EQ(raised, "bid 10 ");
}

TEST_F(TableKeysTest, ThePanelOpensAtOneAndTheMarkOfANumberIsSeen) {
  for (int round = 1; round <= 2; ++round) {
    Open(Table.FramBids);
    EXPECT_EQ(FocusName(), "LblBids(1)");
    const QImage plain = game.Find("LblBids(7)").grab().toImage();
    Press({Qt::Key_7});
    EXPECT_NE(game.Find("LblBids(7)").grab().toImage(), plain);
    std::string way;  // the path of the focus, because tools read out every stop
    const auto watching =
        QObject::connect(qApp, &QApplication::focusChanged, [&way] { way += FocusName() + " "; });
    Open(Table.FramBids, false);
    QObject::disconnect(watching);
    EXPECT_EQ(way, "Cds(5) ");
  }
}

TEST_F(TableKeysTest, AnotherHandIsWalkedThroughOnceItIsDealt) {
  Press({Qt::Key_End});
  PlacePackDeal();
  TrumpSuit = -1;
  game.Turn();
  EXPECT_EQ(FocusName(), "Table");
  for (const int card : {7, 9, 50}) Pack[card].Owner = Player;
  ShowPlayerHand();
  Press({Qt::Key_Right, Qt::Key_Return});
  EXPECT_EQ(FocusName(), "Table") << "while the cards come";
  TrumpSuit = Hearts;
  game.Turn();
  EXPECT_EQ(FocusName(), "Cds(7)");
  EXPECT_EQ(raised, "");
}

TEST_F(TableKeysTest, AKeyHeldDownPlaysAndBidsOnce) {
  const auto repeat = [this] {
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(Focus(), &again);
    game.Turn();
  };
  Press({Qt::Key_Home});
  QTest::sendKeyEvent(QTest::Press, Focus(), Qt::Key_Return, QString("\r"), Qt::NoModifier);
  repeat();
  Open(Table.FramBids);
  EXPECT_EQ(FocusName(), "LblBids(1)");
  repeat();
  EXPECT_EQ(raised, "card 5 ");
  // Held down since it closed a box: it marks nothing and presses no button.
  Click(game.Find("Table"));
  game.Find("Cds(5)").setFocus();
  repeat();
  EXPECT_FALSE(mark.isVisible());
  Open(Table.CmdDontShow);
  game.Find("CmdDontShow").setFocus();
  repeat();
  EXPECT_EQ(HideWelcome, False);
}

// A release and a press with the same timestamp, which Qt did not recognise as a repeated key.
TEST_F(TableKeysTest, AKeyThatTheDesktopRepeatsIsHeldDown) {
  Press({Qt::Key_Home});
  const auto send = [this](QEvent::Type type, quint64 moment, Qt::Key key = Qt::Key_Return) {
    QKeyEvent event(type, key, Qt::NoModifier, "\r");
    event.setTimestamp(moment);
    QApplication::sendEvent(game.Find("FrmMain").windowHandle(), &event);
  };
  send(QEvent::KeyPress, 1000);
  for (const quint64 moment : {1600, 1640, 1680}) {
    send(QEvent::KeyRelease, moment);
    send(QEvent::KeyPress, moment);
  }
  send(QEvent::KeyPress, 1680, Qt::Key_Space);
  send(QEvent::KeyRelease, 1700);
  send(QEvent::KeyPress, 1800);
  game.Turn();
  EXPECT_EQ(raised, "card 5 card 5 card 5 ");
}

TEST_F(TableKeysTest, KeysInTheListOrWithCtrlMeanNothingForTheHand) {
  for (const char* line : {"West played", "North played", "East played"})
    AddLine(Table.LstCardsPlayed, {line});
  game.Turn();
  auto& list = dynamic_cast<QListView&>(game.Find("LstCardsPlayed"));
  list.setFocus();
  Press({Qt::Key_Return, Qt::Key_Space, Qt::Key_3, Qt::Key_Up});
  EXPECT_EQ(FocusName(), "LstCardsPlayed");
  EXPECT_EQ(list.currentIndex().data().toString(), "North played");
  PressKey(Qt::Key_H, Qt::AltModifier);
  Press({Qt::Key_Escape, Qt::Key_Tab});
  EXPECT_FALSE(list.selectionModel()->hasSelection()) << "it looks as if it had the focus";
  for (const Qt::Key key : {Qt::Key_S, Qt::Key_H, Qt::Key_End}) PressKey(key, Qt::ControlModifier);
  game.Turn();
  EXPECT_EQ(FocusName(), "Cds(5)");
  EXPECT_EQ(raised, "");
}

TEST_F(TableKeysTest, TabGoesRoundTheTableOrTheCardsThatMayBePlayed) {
  Open(Table.FramBids);
  for (const char* stop : {"LblBids(1)", "LstCardsPlayed", "Cds(5)", "LblBids(1)"}) {
    EXPECT_EQ(FocusName(), stop);
    Press({Qt::Key_Tab});
  }
  Press({Qt::Key_Tab, Qt::Key_1, Qt::Key_3});
  EXPECT_EQ(FocusName(), "LblBids(13)") << "a number works from the hand, too";
  Press({Qt::Key_Up, Qt::Key_Space});
  EXPECT_EQ(raised, "bid 9 ");
  Open(Table.FramBids, false);
  PlayerTurn = True;
  Leader = West;
  TrickSuits[1] = Hearts;
  Press({Qt::Key_Tab, Qt::Key_Tab});
  EXPECT_EQ(FocusName(), "Cds(31)");
  Press({Qt::Key_Backtab});
  EXPECT_EQ(FocusName(), "LstCardsPlayed");
}

TEST_F(TableKeysTest, TheMarkIsForTheKeysAndFramesWhatIsSeenOfTheCard) {
  Press({Qt::Key_Right});
  EXPECT_TRUE(mark.isVisible());
  EXPECT_LT(mark.geometry().right() - 9, game.Find("Cds(31)").x()) << "it covers the next card";
  EXPECT_TRUE(mark.geometry().contains(game.Find("Cds(18)").pos()));
  Press({Qt::Key_End});
  EXPECT_TRUE(mark.geometry().contains(game.Find("Cds(44)").geometry()));
  const QImage outOfTurn = mark.grab().toImage();
  PlayerTurn = True;
  Press({Qt::Key_End});
  EXPECT_NE(mark.grab().toImage(), outOfTurn) << "whether it may be played is not to be seen";
  Click(game.Find("Cds(5)"));
  Press({Qt::Key_Control});
  EXPECT_FALSE(mark.isVisible());
  Press({Qt::Key_Left, Qt::Key_Backtab});
  EXPECT_FALSE(mark.isVisible()) << "the list has the focus";
  Press({Qt::Key_Tab, Qt::Key_Home});
  EXPECT_TRUE(mark.isVisible());
  QWidget& first = game.Find("Cds(5)");
  EXPECT_EQ(game.Find("Table").childAt(first.pos() + QPoint(2, 2)), &first) << "it takes clicks";
  const QPoint place = mark.pos();
  first.move(first.pos() + QPoint(7, 0));
  EXPECT_EQ(mark.pos(), place + QPoint(7, 0));
}

// Where the focus is when a key is pressed.
enum Place { OnBid, OnCard, OnList };

const struct {
  const char* where;  // they count: on a Bid, on a Card, in the List
  std::initializer_list<QKeyCombination> keys;
} KeyCases[] = {
    // Commands, and keys that do not use the mark: a mouse player presses them too.
    {"", {Qt::Key_F2, Qt::Key_F1, Qt::Key_Escape, Qt::Key_PageUp, Qt::Key_PageDown}},
    {"", {Qt::Key_VolumeUp, Qt::Key_Q, Qt::SHIFT | Qt::Key_Shift, Qt::CTRL | Qt::Key_Control}},
    {"", {Qt::CTRL | Qt::Key_S, Qt::CTRL | Qt::Key_1, Qt::ALT | Qt::Key_Left}},
    {"", {Qt::META | Qt::Key_Right, Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Space}},
    // Keys that move or use the mark.
    {"BC", {Qt::Key_Left, Qt::SHIFT | Qt::Key_Right, Qt::Key_Up, Qt::Key_Home, Qt::Key_End}},
    {"BC", {Qt::KeypadModifier | Qt::Key_Down, Qt::KeypadModifier | Qt::Key_Enter, Qt::Key_7}},
    {"BC", {Qt::Key_Return, Qt::Key_Space}},
    {"C", {Qt::Key_H}},
    {"BCL", {Qt::Key_Tab, Qt::SHIFT | Qt::Key_Backtab}},
};

class UseOfKeysTest : public TableKeysTest {
 protected:
  UseOfKeysTest() {
    AddLine(Table.LstCardsPlayed, {"West played"});
    Show(Table.FramBids);
    game.Turn();
  }
  void Press(QKeyCombination key, Place place) {
    constexpr const char* names[] = {"LblBids(4)", "Cds(18)", "LstCardsPlayed"};
    game.Find(names[place]).setFocus();
    PressKey(key.key(), key.keyboardModifiers());
    game.Turn();
  }
  void ExpectUse(QKeyCombination key, Place place, bool counts) {
    SCOPED_TRACE(QKeySequence(key).toString().toStdString() + " at place " + std::to_string(place));
    raised.clear();
    Click(game.Find("Table"));
    Press(key, place);
    EXPECT_EQ(MarkIsSeen(), counts);
    EXPECT_EQ(raised, "") << "nothing was marked";
    if (counts) return;
    for (const Place stray : {OnBid, OnCard}) {
      Click(game.Find("Table"));
      Press(key, place);
      Press(Qt::Key_Return, stray);
      EXPECT_EQ(raised, "") << "the key before made a mark";
    }
    Press(key, place);
    EXPECT_TRUE(MarkIsSeen()) << "who plays by keys goes on";
    EXPECT_EQ(raised, "");
  }
  bool MarkIsSeen() {
    game.Find("Cds(5)").setFocus();
    return game.Find("FocusMark").isVisible();
  }
};

TEST_F(UseOfKeysTest, OnlyKeysThatMoveTheMarkOrUseItCount) {
  for (const auto& [where, keys] : KeyCases)
    for (const QKeyCombination key : keys)
      for (const Place place : {OnBid, OnCard, OnList})
        ExpectUse(key, place, QString(where).contains(QChar("BCL"[place])));
}

// Someone who uses keys in the dialog also plays with keys at the table; the mouse works the same
// way.
TEST_F(UseOfKeysTest, InTheDialogCountAtTheTableAndTheMouseThereDoes) {
  const auto ask = [this](const std::function<void()>& act) {
    game.platform.person = [&] {
      if (!MFormDeluxe.Visible) return;
      act();
      Label1_Click(0);
    };
    ShowMessage("Shall we?", "Yes", "No", "", 3, "A question");
    game.platform.person = [] {};
    game.Turn();
    QApplication::setActiveWindow(&game.Find("FrmMain"));
  };
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Left, Qt::Key_Return, Qt::Key_Space}) {
    Click(game.Find("Table"));
    ask([&] { PressKey(key); });
    EXPECT_TRUE(MarkIsSeen()) << key;
    ask([&] { QTest::mousePress(&game.Find("Label2"), Qt::LeftButton); });
    EXPECT_FALSE(MarkIsSeen());
    ask([&] { PressKey(Qt::Key_Escape); });
    EXPECT_FALSE(MarkIsSeen());
  }
}

// The most common way to start: everything but F2 is done with the mouse.
TEST(Keys, F2AndTheMouseLeaveTheTableUnmarked) {
  QImage pictures[2];
  for (const bool isStartedByKey : {false, true}) {
    WindowGame game;
    PersonAtWindow person;
    if (!isStartedByKey) person.starts = 1;
    bool hasStarted = isStartedByKey;
    game.Run([&] {
      if (!std::exchange(hasStarted, true)) ChooseMenu(MenuItem::MnuNew);
      if (game.Find("FramBids").isVisible())
        pictures[isStartedByKey] = game.Find("FramBids").grab().toImage();
      if (PlayerTurn == False) return person.Act();
      EXPECT_FALSE(game.Find("FocusMark").isVisible());
      throw SeenEnough{};
    });
  }
  EXPECT_EQ(pictures[0], pictures[1]);
}

}  // namespace
}  // namespace Parlino
