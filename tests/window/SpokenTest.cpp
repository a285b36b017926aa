// What assistive tools find: a name and a role for everything, actions that play, and an
// announcement for each new text of the information line.
#include <gtest/gtest.h>
#include <set>

#include <QAccessible>
#include <QAccessibleTableCellInterface>
#include <QAccessibleTableInterface>
#include <QApplication>
#include <QTest>

#include "WindowGame.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/window/speaking/AssistiveTools.h"
#include "table/window/speaking/SpokenNames.h"

namespace Parlino {
namespace {

using Voice = QAccessibleInterface*;

Voice VoiceOf(const QString& name) {
  return QAccessible::queryAccessibleInterface(&WindowGame::Find(name));
}

QString NameOf(Voice voice) {
  return voice->text(QAccessible::Name);
}

// Everything in the window that is not hidden from tools.
QList<Voice> VoicesIn(Voice voice) {
  QList<Voice> found;
  for (int place = 0; place < voice->childCount(); ++place) {
    const Voice child = voice->child(place);
    if (child == nullptr) {
      ADD_FAILURE() << "child " << place << " of " << NameOf(voice).toStdString();
    } else if (!child->state().invisible) {
      EXPECT_EQ(voice->indexOfChild(child), place) << NameOf(child).toStdString();
      found.append(child);
      found.append(VoicesIn(child));
    }
  }
  return found;
}

Voice FindVoice(const QString& window, const QString& name) {
  for (const Voice voice : VoicesIn(VoiceOf(window)))
    if (NameOf(voice) == name) return voice;
  throw std::out_of_range("nothing says " + name.toStdString());
}

void PressVoice(Voice voice) {
  voice->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

// Qt's own objects that only contain others and have nothing to say themselves.
bool IsHolder(Voice voice) {
  const auto role = voice->role();
  return (role == QAccessible::Client || role == QAccessible::ScrollBar ||
          role == QAccessible::Grouping) &&
         NameOf(voice).isEmpty();
}

void ExpectNamesAndRoles(const QString& window) {
  SCOPED_TRACE(window.toStdString());
  EXPECT_FALSE(NameOf(VoiceOf(window)).isEmpty());
  std::set<std::pair<int, QString>> names;  // a text and the label beside it may have the same name
  for (const Voice voice : VoicesIn(VoiceOf(window))) {
    if (IsHolder(voice)) continue;
    const QString name = NameOf(voice);
    EXPECT_FALSE(name.isEmpty()) << "role " << voice->role() << " "
                                 << voice->object()->objectName().toStdString();
    EXPECT_TRUE(names.emplace(voice->role(), name).second)
        << name.toStdString() << " is said twice";
    EXPECT_NE(voice->role(), QAccessible::NoRole) << name.toStdString();
  }
}

// Plays only by what is spoken, and checks the names and roles on the way.
class Listener {
 public:
  int played = 0;

  void Act() {
    if (QApplication::activeModalWidget() != nullptr)
      Answer();
    else if (!hasStarted_)
      Start();
    else if (!FindBid()->state().invisible)
      Bid();
    else
      Play();
  }

 private:
  static Voice FindBid() { return VoiceOf("LblBids(3)"); }

  void Start() {
    hasStarted_ = true;
    ExpectNamesAndRoles("FrmMain");
    FindVoice("FrmMain", "Play");
    PressKey(Qt::Key_F2);
  }
  void Bid() {
    if (hasBid_) return;
    hasBid_ = true;
    ExpectNamesAndRoles("FrmMain");
    PressVoice(FindVoice("FrmMain", "Bid 3"));
  }
  void Play() {
    for (const Voice voice : VoicesIn(VoiceOf("Table"))) {
      if (voice->role() != QAccessible::Button || !NameOf(voice).contains("playable")) continue;
      ExpectNamesAndRoles("FrmMain");
      const auto cards = TricksInHand - played;
      EXPECT_TRUE(NameOf(voice).endsWith(QString(" of %1").arg(cards)))
          << NameOf(voice).toStdString();
      ++played;
      return PressVoice(voice);
    }
  }
  void Answer() {
    if (hasAnswered_) return;
    hasAnswered_ = true;
    const Voice dialog = VoiceOf("MFormDeluxe");
    EXPECT_EQ(dialog->role(), QAccessible::Dialog);
    EXPECT_EQ(NameOf(dialog), "Scores");
    EXPECT_TRUE(dialog->state().modal);
    EXPECT_TRUE(dialog->text(QAccessible::Description).startsWith("Player and North have scored"));
    ExpectNamesAndRoles("MFormDeluxe");
    PressVoice(FindVoice("MFormDeluxe", "Save and Exit"));
  }

  bool hasStarted_ = false;
  bool hasBid_ = false;
  bool hasAnswered_ = false;
};

TEST(Spoken, NamesAndActionsAreEnoughForAHand) {
  WindowGame game;
  Listener listener;
  EXPECT_EQ(game.Run([&] { listener.Act(); }), 0);
  EXPECT_EQ(listener.played, 13);
  EXPECT_EQ(TrickNumber, 13);
}

TEST(Spoken, OtherWindowsHaveNamesAndRoles) {
  WindowGame game;
  game.platform.ReplaceFile("ParlinoHelp.rtf", "{\\rtf1 Follow suit.}");
  game.Load();
  ChooseMenu(MenuItem::MnuAbout);
  ChooseMenu(MenuItem::MnuRules);
  game.Turn();
  ExpectNamesAndRoles("frmHelp");
  ExpectNamesAndRoles("frmAbout");
  bool wasAsked = false;
  game.platform.person = [&] {
    QDialog* box = OpenBox();
    if (box == nullptr) return;
    wasAsked = true;
    box->setObjectName("box");
    ExpectNamesAndRoles("box");
    box->reject();
  };
  ChooseMenu(MenuItem::MnuPname);
  EXPECT_TRUE(wasAsked);
}

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

TEST_F(SpokenTable, SeatsAndTrumpsSayWhatIsKnown) {
  constexpr std::pair<Integer, const char*> suits[] = {{PictureHearts, "Trumps Hearts"},
                                                       {PictureClubs, "Trumps Clubs"},
                                                       {PictureDiamonds, "Trumps Diamonds"},
                                                       {PictureSpades, "Trumps Spades"}};
  EXPECT_TRUE(SpokenTrumps().isOnlyForEyes);
  for (const auto& [picture, spoken] : suits) {
    SetPicture(Table.imgtrumps, picture);
    EXPECT_EQ(SpokenTrumps().name, spoken);
  }
  EXPECT_EQ(SpokenSeat(West).name, "West- Welcome Player");
  SeatNames[West] = "Bob";
  QStringList said;
  game.platform.person = [&] {
    if (const QString now = SpokenSeat(West).name; said.isEmpty() || said.last() != now)
      said.append(now);
    if (Bids[West] > 0) throw SeenEnough{};
    if (Table.FramBids.Visible) ClickBid(3);
  };
  EXPECT_THROW(ChooseMenu(MenuItem::MnuNew), SeenEnough);
  EXPECT_EQ(said.first(), "West, Bob: no bid yet, took 0");
  EXPECT_EQ(said.last(), QString("West, Bob: bid %1, took 0").arg(Bids[West]));
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
  EXPECT_EQ(scores->role(), QAccessible::Table);
  EXPECT_EQ(NameOf(scores), "Bidding Situation");
  QAccessibleTableInterface& table = *scores->tableInterface();
  ASSERT_EQ(table.rowCount(), 6);
  ASSERT_EQ(table.columnCount(), 2);
  const char* rows[] = {"North", "Player", "NSPartners", "West", "East", "WEPartners"};
  const char* columns[] = {"Bid", "Made"};
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
  const auto look = [&] {
    game.Turn();
    changes.Tell();
  };
  const auto say = [&](const char* text) {
    SetCaption(Table.LblInfo, {text});
    look();
  };
  look();
  say("North deciding what to bid");
  say("North deciding what to bid");
  Hide(Table.LblInfo);
  look();
  Show(Table.LblInfo);
  BringToFront(Table.LblInfo);
  look();
  say("");
  Hide(Table.LblInfo);
  say("Player please play a card.");
  GiveHand();
  look();
  EXPECT_EQ(told.join("|").toStdString(), "North deciding what to bid|Player please play a card.");
}

}  // namespace
}  // namespace Parlino
