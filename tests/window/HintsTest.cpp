// The pointer and the tool tip over a card: they tell the truth, even if the mouse does not move,
// and they appear only on cards of the Player's hand.
#include <functional>
#include <gtest/gtest.h>
#include <string>

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QProxyStyle>
#include <QTest>
#include <QToolTip>
#include <QWindow>

#include "WindowGame.h"
#include "engine/TrickPlay.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/window/painting/Named.h"
#include "table/window/painting/Pictures.h"

namespace Parlino {
namespace {

std::string raised;

QWidget& CardWidget(int card) {
  return WindowGame::FindMember("Cds", card);
}

// "play", "wait", or nothing if the card shows the ordinary pointer and has no tip.
std::string HintOn(int card) {
  const QWidget& widget = CardWidget(card);
  const bool hasPointer = widget.testAttribute(Qt::WA_SetCursor);
  if (!hasPointer && widget.toolTip().isEmpty()) return {};
  const auto shows = [&](Integer pointer, const char* tip) {
    const QImage picture = CardPicture(pointer, widget.devicePixelRatioF()).toImage();
    return hasPointer && widget.cursor().pixmap().toImage() == picture && widget.toolTip() == tip;
  };
  if (shows(PicturePointerPlay, "Player left click the card you wish to play.")) return "play";
  if (shows(PicturePointerWait, "Player sorry, it is not your turn at the moment.")) return "wait";
  return "pointer and tip that do not belong together";
}

class Hints : public testing::Test {
 protected:
  Hints() {
    game.Load();
    Hide(Table.LblIntro);
    PlacePackDeal();
    for (const int card : {5, 18, 31, 44}) Pack[card].Owner = Player;
    for (const int card : {6, 19, 32, 45}) Pack[card].Owner = West;
    ShowPlayerHand();
    ShowWestHand();
    GameInProgress = True;
    Leader = West;
    LedSuit = Clubs;
    PauseMs = DefaultPauseMs;
    Settle();
    Events.Cds_MouseMove = [](Integer card) {
      raised += "over " + std::to_string(card) + " ";
      Cds_MouseMove(card);
    };
    raised.clear();
  }

  // More turns than it takes for anything to be reported and shown.
  void Settle() {
    for (int turn = 1; turn <= 5; ++turn) game.Turn();
  }
  // A spot of the card that is visible even when the next card covers the rest.
  static QPoint SpotOf(int card) { return CardWidget(card).mapToGlobal(QPoint(8, 48)); }

  void PutPointer(QPoint place) {
    QCursor::setPos(place);
    QCoreApplication::processEvents();
    Settle();
  }
  void RestOn(int card) {
    PutPointer(SpotOf(card));
    raised.clear();
  }
  void TakeFromHand(int card) {
    Pack[card].Owner = NoSeat;
    ShowPlayerHand();
    Settle();
  }
  void OpenTurn() {
    PlayerTurn = True;
    Settle();
  }
  // As Qt does when the mouse has rested for a moment.
  static void OpenTip(int card) {
    QWidget& widget = CardWidget(card);
    const QPoint spot(8, 48);
    QHelpEvent rest(QEvent::ToolTip, spot, widget.mapToGlobal(spot));
    QApplication::sendEvent(&widget, &rest);
    ASSERT_TRUE(QToolTip::isVisible());
  }
  static bool TipGoes() {
    return QTest::qWaitFor([] { return !QToolTip::isVisible(); }, PatienceMs);
  }

  WindowGame game;
};

TEST_F(Hints, APointerAtRestIsToldOnceThatTheTurnOpensAndOnceThatItCloses) {
  PutPointer(SpotOf(18));
  EXPECT_EQ(raised, "over 18 ");
  EXPECT_EQ(HintOn(18), "wait");
  for (const auto& [turn, hint] : {std::pair{True, "play"}, {False, "wait"}, {True, "play"}}) {
    raised.clear();
    PlayerTurn = turn;
    Settle();
    EXPECT_EQ(HintOn(18), hint);
    EXPECT_EQ(raised, "over 18 ");
  }
}

TEST_F(Hints, ThePointerNeedNeverHaveMoved) {
  Hide(Table.FrmMain);
  game.Find("FrmMain").hide();
  PutPointer(SpotOf(31));
  Show(Table.FrmMain);
  Settle();
  EXPECT_EQ(HintOn(31), "wait");
  OpenTurn();
  EXPECT_EQ(HintOn(31), "play");
  EXPECT_EQ(raised, "over 31 over 31 ");
}

TEST_F(Hints, AreOnTheCardThatIsSeenBelowThePointerOnlyAndCallThePlayerByName) {
  PutPointer(CardWidget(18).mapToGlobal(QPoint(40, 48)));
  EXPECT_EQ(raised, "over 31 ");
  EXPECT_EQ(HintOn(18), "");
  RestOn(18);
  RestOn(31);
  EXPECT_EQ(HintOn(18), "wait");
  PlayerName = "Ann";
  Settle();
  EXPECT_EQ(CardWidget(31).toolTip(), "Ann sorry, it is not your turn at the moment.");
  OpenTurn();
  EXPECT_EQ(HintOn(18), "") << "its tip may be about to open";
}

TEST_F(Hints, AreNotRaisedWithoutACardOfTheHandBelowThePointer) {
  for (const QPoint place : {QPoint(0, 0), game.Find("Table").mapToGlobal(QPoint(20, 400)),
                             CardWidget(45).mapToGlobal(QPoint(8, 30))}) {
    RestOn(18);
    PutPointer(place);
    raised.clear();
    PlayerTurn = PlayerTurn == False ? True : False;
    Settle();
    EXPECT_EQ(raised, "") << place.x();
  }
}

TEST_F(Hints, WaitUntilADialogIsAnsweredAndThenHold) {
  for (const bool isBox : {true, false}) {
    PlayerTurn = False;
    Settle();
    RestOn(18);
    int waits = 0;
    game.platform.person = [&] {
      PlayerTurn = True;
      if (++waits < 5) return;
      EXPECT_EQ(raised, "");
      PressKey(Qt::Key_Return);
    };
    if (isBox)
      game.platform.MsgBox("text", "title", false);
    else
      ShowMessage("text", "OK", "", "", 1, "title");
    game.platform.person = [] {};
    EXPECT_GE(waits, 5);
    Settle();
    EXPECT_EQ(HintOn(18), "play");
    EXPECT_EQ(raised, "over 18 ");
  }
}

// Another program's window lies in front, or the game has not gone on after an answer. Nor is
// anything left in the queue, which would keep the game awake.
TEST_F(Hints, WaitWhileThePlayerCouldNotMoveThePointerThere) {
  QWindow* window = game.Find("FrmMain").windowHandle();
  const QPointF spot = window->mapFromGlobal(SpotOf(18));
  for (const bool isCovered : {true, false}) {
    PlayerTurn = False;
    Settle();
    RestOn(18);
    QEvent leave(QEvent::Leave);
    if (isCovered) QApplication::sendEvent(window, &leave);
    MFormDeluxe.IsWaiting = !isCovered;
    int waits = 0;
    game.platform.person = [&] { ++waits; };
    OpenTurn();
    game.platform.person = [] {};
    EXPECT_EQ(waits, 5);
    EXPECT_EQ(raised, "");
    QEnterEvent enter(spot, spot, SpotOf(18));
    if (isCovered) QApplication::sendEvent(window, &enter);
    MFormDeluxe.IsWaiting = false;
    Settle();
    EXPECT_EQ(raised, "over 18 ");
  }
}

TEST_F(Hints, FollowTheCardsThatComeToLieBelowThePointerOnceNoButtonIsHeld) {
  RestOn(31);
  QWindow* window = game.Find("FrmMain").windowHandle();
  const QPoint spot = window->mapFromGlobal(SpotOf(31));
  QTest::mousePress(window, Qt::LeftButton, {}, spot);
  TakeFromHand(5);
  EXPECT_EQ(raised, "");
  QTest::mouseRelease(window, Qt::LeftButton, {}, spot);
  Settle();
  EXPECT_EQ(raised, "over 44 ");
  EXPECT_EQ(HintOn(44), "wait");
  EXPECT_TRUE(CardWidget(44).underMouse()) << "Qt shows the pointer of this card";
  PutPointer(CardWidget(44).mapToGlobal(QPoint(66, 48)));
  raised.clear();
  TakeFromHand(18);
  EXPECT_FALSE(CardWidget(44).underMouse()) << "the bare table has the ordinary pointer";
  EXPECT_EQ(raised, "");
}

TEST_F(Hints, LeaveCardsOnTheirWayAlone) {
  game.platform.Motion().Allow(true);
  RestOn(31);
  Pack[5].Owner = NoSeat;
  ShowPlayerHand();
  const QPoint goal = CardWidget(31).pos();
  int framesOnTheWay = 0;
  for (std::uint32_t gone = 0; gone < 500; gone = game.platform.ticks) {
    game.platform.ProcessEvents(500 - gone);
    if (CardWidget(44).pos() == goal) continue;
    ++framesOnTheWay;
    EXPECT_EQ(raised, "");
  }
  EXPECT_GT(framesOnTheWay, 5);
  EXPECT_EQ(raised, "over 44 ");
}

TEST_F(Hints, FollowTheTableWhenItIsScrolled) {
  game.Find("FrmMain").resize(784, 500);
  Settle();
  PressKey(Qt::Key_PageUp);
  PutPointer(CardWidget(18).mapToGlobal(QPoint(8, 5)));
  raised.clear();
  PressKey(Qt::Key_PageDown);
  OpenTurn();
  EXPECT_EQ(raised, "");
  PressKey(Qt::Key_PageUp);
  Settle();
  EXPECT_EQ(raised, "over 18 ");
  EXPECT_EQ(HintOn(18), "play");
}

TEST_F(Hints, ThatAreOpenAsATipGoWhenTheyDoNotHoldAnyMore) {
  RestOn(18);
  OpenTip(18);
  Settle();
  EXPECT_EQ(QToolTip::text(), "Player sorry, it is not your turn at the moment.");
  OpenTurn();
  EXPECT_TRUE(TipGoes()) << "the turn has come";
  OpenTip(18);
  Cds_Click(18);
  EXPECT_EQ(HintOn(18), "");
  EXPECT_TRUE(TipGoes()) << "the card has been played, by a key";
}

// Opens tool tips at once, so that a test need not wait for them.
class QuickTips : public QProxyStyle {
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    if (hint == SH_ToolTip_WakeUpDelay || hint == SH_ToolTip_FallAsleepDelay) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
  }
};

TEST_F(Hints, OpenAsATipForNobodyWhoDoesNotMoveThePointer) {
  QuickTips quick;
  for (const int card : {31, 44}) CardWidget(card).setStyle(&quick);
  const auto tipOpens = [&] {
    for (int turn = 1; turn <= 20 && !QToolTip::isVisible(); ++turn) game.Turn();
    return QToolTip::isVisible();
  };
  RestOn(31);
  EXPECT_TRUE(tipOpens()) << "for one who moves it";
  OpenTurn();
  ASSERT_TRUE(TipGoes());
  EXPECT_FALSE(tipOpens()) << "the turn has come";
  TakeFromHand(5);
  EXPECT_EQ(HintOn(44), "play");
  EXPECT_FALSE(tipOpens()) << "another card has come";
}

// The model keeps them there until the card is in the hand again and the mouse moves over it.
TEST_F(Hints, AreOnNoCardButThoseInThePlayersHand) {
  const std::pair<const char*, void (*)()> cases[] = {
      {"dealt to North", [] { Pack[18].Owner = North, ShowNorthHand(); }},
      {"dealt to East", [] { Pack[18].Owner = East, ShowEastHand(); }},
      {"put into the middle", [] { MoveToMiddle(18, Player); }},
      {"and played", [] { Pack[18].Owner = NoSeat; }},
      {"gathered", [] { SetPicture(Table.Cds[18], PictureBackSideways); }},
      {"in the pack", PlacePackDeal},
      {"dealt, but still face down", [] { Pack[18].Owner = Player; }}};
  RestOn(18);
  OpenTurn();
  EXPECT_EQ(HintOn(18), "play");
  for (const auto& [name, arrange] : cases) {
    arrange();
    Settle();
    EXPECT_EQ(HintOn(18), "") << name;
    EXPECT_EQ(Table.Cds[18].MousePointer, PicturePointerPlay);
    auto* voice = QAccessible::queryAccessibleInterface(&CardWidget(18));
    EXPECT_EQ(voice->text(QAccessible::Description), "") << name;
  }
  ShowPlayerHand();
  Settle();
  EXPECT_EQ(HintOn(18), "play");
}

}  // namespace
}  // namespace Parlino
