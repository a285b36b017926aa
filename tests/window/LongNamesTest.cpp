// Names longer than any real one, and text that looks like markup.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QListView>
#include <QTest>
#include <QToolTip>

#include "WindowGame.h"
#include "engine/Deal.h"
#include "engine/StartUp.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/WrappedText.h"
#include "table/window/speaking/SpokenNames.h"

namespace Parlino {
namespace {

class ShortNames : public testing::Test {
 protected:
  ShortNames() {
    game.Load();
    Hide(Table.lblTitle);
    Show(Table.Shape1);
  }

  void Deal() {
    PlacePackDeal();
    DealCards();
    Hide(Table.CmdDontShow);
  }

  void ExpectWholeNames(const char* when) {
    game.Turn();
    for (int seat = Player; seat <= East; ++seat)
      EXPECT_EQ(game.FindMember("LblName", seat).toolTip(), "") << when << ", " << seat;
  }

  QImage WestsName() {
    game.Turn();
    return game.Find("Table").grab(game.FindMember("LblName", West).geometry()).toImage();
  }

  WindowGame game;
};

// A new name is greeted whatever is happening at the table.
TEST_F(ShortNames, AreShownWholeWithAllThatIsSaidOfThem) {
  ExpectWholeNames("before the first hand");
  Deal();
  ShowNames();
  ExpectWholeNames("in a hand");
  for (int seat = Player; seat <= East; ++seat)
    SetCaption(Table.LblName[seat], {SeatNames[seat], " bids 13"});
  ExpectWholeNames("after the bids");
}

TEST_F(ShortNames, AreNotHiddenByTheCardsThatTheyReach) {
  const QImage beforeTheDeal = WestsName();
  Deal();
  ShowNames();
  EXPECT_TRUE(WestsName() == beforeTheDeal);
}

TEST(LongNames, AreCutShortAtTheirNeighbours) {
  WindowGame game;
  game.Load();
  for (const std::size_t length : {40U, 400U, 40000U}) {
    PlayerName = std::string(length, 'W');
    for (std::string& name : SeatNames) name = PlayerName;
    ShowNames();
    Show(Table.LblTrumps);
    SetCaption(Table.LblInfo, {PlayerName, " please play a card."});
    game.Turn();
    constexpr int ends[] = {248, 567, 512, 744};
    for (int seat = Player; seat <= East; ++seat) {
      const QWidget& label = game.FindMember("LblName", seat);
      EXPECT_LT(label.geometry().right(), ends[seat]) << seat;
      EXPECT_EQ(label.toolTip().size(), static_cast<qsizetype>(Table.LblName[seat].Caption.size()));
    }
    EXPECT_EQ(game.Find("LblInfo").size(), QSize(457, 33));
  }
}

TEST(LongNames, LeaveTheListsCardsReadable) {
  WindowGame game;
  game.Load();
  const std::string name(60, 'W');
  for (const char* card : {"Three of  Diamonds", "Queen of  Diamonds", "Queen of  Diamonds"})
    AddLine(Table.LstCardsPlayed, {name, " played ", card});
  game.Turn();
  auto& list = dynamic_cast<QListView&>(game.Find("LstCardsPlayed"));
  const auto line = [&](int row) {
    return list.viewport()->grab(list.visualRect(list.model()->index(row, 0))).toImage();
  };
  EXPECT_FALSE(line(0) == line(1));
  EXPECT_TRUE(line(1) == line(2)) << "each line looks different anyway";
}

TEST(LongNames, AreShownAndSpokenAsTheyStand) {
  WindowGame game;
  game.Load();
  SetCaption(Table.LblName[Player], {"<b>Bo</b> & Co"});
  game.Turn();
  const auto& label = dynamic_cast<QLabel&>(game.FindMember("LblName", Player));
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(SpokenSeat(Player).name, "<b>Bo</b> & Co");
  EXPECT_EQ(PlainToolTip(label.text()), "<span>&lt;b&gt;Bo&lt;/b&gt; &amp; Co</span>");
}

TEST(LongNames, GoFromAnOpenTipWhenTheyAreChanged) {
  WindowGame game;
  game.Load();
  SetCaption(Table.LblName[North], {std::string(100, 'W')});
  game.Turn();
  QWidget& label = game.FindMember("LblName", North);
  const QPoint spot = label.rect().center();
  QCursor::setPos(label.mapToGlobal(spot));
  QCoreApplication::processEvents();
  ASSERT_TRUE(label.underMouse());
  QHelpEvent rest(QEvent::ToolTip, spot, label.mapToGlobal(spot));
  QCoreApplication::sendEvent(&label, &rest);
  EXPECT_TRUE(QToolTip::isVisible());
  SetCaption(Table.LblName[North], {std::string(100, 'E')});
  game.Turn();
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, PatienceMs));
}

TEST(WrappedText, EveryLineFitsAndNoWordIsLost) {
  const QFont font = WindowFont();
  const QFontMetrics metrics(font);
  const QString text = "Player sorry, you must follow suit. Please try again";
  for (const int width : {60, 120, 355, 1000}) {
    const QStringList lines = WrapText(text, font, width, 100);
    for (const QString& line : lines) EXPECT_LE(metrics.horizontalAdvance(line), width) << width;
    EXPECT_EQ(lines.join(" "), text) << width;
  }
}

TEST(WrappedText, TheLastLineTellsThatThereIsMoreAndKeepsTheEnd) {
  const QFont font = WindowFont();
  constexpr int width = 80;
  const QStringList lines = WrapText("one two three four five six seven", font, width, 2);
  EXPECT_EQ(lines.size(), 2);
  EXPECT_TRUE(lines.last().contains(Ellipsis));
  EXPECT_TRUE(lines.last().endsWith("ven"));
  EXPECT_LE(QFontMetrics(font).horizontalAdvance(lines.last()), width);
  const QString bid = QString(100, 'e') + " bids 10";
  EXPECT_TRUE(WrapText(bid, font, 150, 1).first().endsWith("bids 10"));
  for (const char* text : {"", " ", "x"}) EXPECT_EQ(WrapText(text, font, 100, 3).size(), 1) << text;
}

}  // namespace
}  // namespace Parlino
