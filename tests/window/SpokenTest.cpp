// What assistive tools find, beside the words: what is hidden from them, the table of scores, the
// focus, and an announcement for each new text of the information line.
#include <gtest/gtest.h>

#include <QAccessibleTableCellInterface>
#include <QAccessibleTableInterface>

#include "PersonAtWindow.h"
#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"
#include "table/window/speaking/AssistiveTools.h"
#include "table/window/speaking/SpokenNames.h"

namespace Parlino {
namespace {

class SpokenTable : public testing::Test {
 protected:
  SpokenTable() { game.Load(); }

  void GiveHand() {
    PlacePackDeal();
    TrumpSuit = Spades;
    for (const int card : {3, 16, 37}) Pack[card].Owner = Player;
    for (const int card : {4, 17, 38}) Pack[card].Owner = West;
    ShowPlayerHand();
    ShowWestHand();
    Leader = West;
    game.Turn();
  }

  WindowGame game;
};

TEST_F(SpokenTable, CardsSayWhatCanBeSeen) {
  const auto says = [](int card) { return SpokenCard(static_cast<Integer>(card)); };
  EXPECT_TRUE(says(3).isOnlyForEyes) << "in the pack";
  GiveHand();
  EXPECT_EQ(says(37).name, "Queen of Hearts, 3 of 3");
  EXPECT_TRUE(says(38).isOnlyForEyes) << "in West's hand";
  EXPECT_TRUE(VoiceOf("Cds(38)")->rect().isEmpty()) << "its place would tell whose it is";
  SetPicture(Table.Cds[38], 38);
  EXPECT_EQ(says(38).name, "King of Hearts") << "about to be played";
  MoveToMiddle(38, West);
  EXPECT_EQ(says(38).name, "King of Hearts, played by West");
  TrickSuits[1] = Hearts;
  PlayerTurn = True;
  EXPECT_EQ(says(37).name, "Queen of Hearts, playable, 3 of 3");
  EXPECT_EQ(says(3).name, "Four of Diamonds, 1 of 3");
  TrickSuits[1] = Spades;
  EXPECT_EQ(says(3).name, "Four of Diamonds, playable, 1 of 3");
}

TEST_F(SpokenTable, TrumpsSayWhatIsKnown) {
  EXPECT_TRUE(SpokenTrumps().isOnlyForEyes);
  const char* suits[] = {"Hearts", "Clubs", "Diamonds", "Spades"};
  for (int suit = 0; suit < 4; ++suit) {
    SetPicture(Table.imgtrumps, ToInteger(PictureHearts + suit));
    EXPECT_EQ(SpokenTrumps().name, QString("Trumps ") + suits[suit]);
  }
}

TEST_F(SpokenTable, AToolMayMoveTheFocusAndTheKeysGoOnFromThere) {
  GiveHand();
  VoiceOf("Cds(37)")->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_TRUE(VoiceOf("Cds(37)")->state().focused);
  PressKey(Qt::Key_Left);
  EXPECT_TRUE(VoiceOf("Cds(16)")->state().focused);
  EXPECT_TRUE(VoiceOf("Cds(3)")->state().focusable);
  EXPECT_FALSE(VoiceOf("Cds(38)")->state().focusable);
}

TEST_F(SpokenTable, TheScoresAreATableWithHeaders) {
  SetCaption(Table.LblWBid, {4});
  SetCaption(Table.LblPNMade, {7});
  game.Turn();
  const Voice scores = VoiceOf("FramScores");
  QAccessibleTableInterface& table = *scores->tableInterface();
  const char* rows[] = {"North", "Player", "NSPartners", "West", "East", "WEPartners"};
  const char* columns[] = {"Bid", "Made"};
  ASSERT_EQ(QPoint(table.rowCount(), table.columnCount()), QPoint(6, 2));
  for (int row = 0; row < 6; ++row) {
    for (int column = 0; column < 2; ++column) {
      const Voice voice = table.cellAt(row, column);
      const auto& cell = *voice->tableCellInterface();
      EXPECT_EQ(NameOf(cell.rowHeaderCells().value(0)), rows[row]);
      EXPECT_EQ(NameOf(cell.columnHeaderCells().value(0)), columns[column]);
      EXPECT_EQ(table.rowDescription(row), rows[row]);
      EXPECT_EQ(table.columnDescription(column), columns[column]);
      EXPECT_EQ(QPoint(cell.rowIndex(), cell.columnIndex()), QPoint(row, column));
      EXPECT_EQ(scores->indexOfChild(voice), 2 * row + column);
      EXPECT_EQ(cell.table(), scores);
    }
  }
  EXPECT_EQ(NameOf(table.cellAt(3, 0)), "West bid 4");
  EXPECT_EQ(NameOf(table.cellAt(2, 1)), "NSPartners made 7");
  EXPECT_EQ(table.cellAt(6, 0), nullptr);
  EXPECT_EQ(table.cellAt(0, 2), nullptr);
}

TEST_F(SpokenTable, TheInformationLineIsReadWhenItsTextChangesAndOnlyThen) {
  QStringList told;
  SpokenChanges changes(game.Find("Table"));
  changes.isHeard = [] { return true; };
  changes.report = [&](QWidget* widget, QAccessible::Event what) {
    const Voice voice = QAccessible::queryAccessibleInterface(widget);
    if (what == QAccessible::ObjectShow && voice->role() == QAccessible::Notification)
      told.append(NameOf(voice));
  };
  const std::function<void()> steps[] = {
      [] {},
      [] { SetCaption(Table.LblInfo, {"North deciding what to bid"}); },
      [] { SetCaption(Table.LblInfo, {"North deciding what to bid"}); },
      [] { Hide(Table.LblInfo); },
      [] { Show(Table.LblInfo), BringToFront(Table.LblInfo); },
      [] { SetCaption(Table.LblInfo, {""}); },
      [] { Hide(Table.LblInfo); },
      [] { SetCaption(Table.LblInfo, {"Player please play a card."}); },
      [this] { GiveHand(); }};
  for (const auto& step : steps) {
    step();
    game.Turn();
    changes.Tell();
  }
  EXPECT_EQ(told.join("|").toStdString(), "North deciding what to bid|Player please play a card.");
}

}  // namespace
}  // namespace Parlino
