// Cards in motion: never off their path, never late, and without taking time from the game.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QEvent>
#include <QTest>

#include "WindowGame.h"
#include "engine/Deal.h"
#include "engine/state/GameState.h"
#include "table/CardDisplay.h"
#include "table/window/desktop/DesktopMotion.h"
#include "table/window/painting/Design.h"
#include "table/window/parts/Builders.h"

namespace Parlino {
namespace {

class Motion : public testing::Test {
 protected:
  Motion() {
    game.Load();
    game.platform.Motion().Allow(true);
    PlacePackDeal();
    game.Turn();
  }

  // Lets `ms` milliseconds of a pause of `pauseMs` pass.
  void Pass(std::uint32_t ms, std::uint32_t pauseMs) {
    const std::uint32_t begun = game.platform.Ticks();
    for (std::uint32_t gone = 0; gone < ms; gone = game.platform.Ticks() - begun)
      game.platform.ProcessEvents(pauseMs - gone);
  }

  WindowGame game;
  QWidget& card = game.Find("Cds(52)");
};

double Distance(QPoint a, QPoint b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

// Watches every painting of a card and reports when the card was off the path from its previous
// place in the model to its present one.
class WayWatcher : public QObject {
 public:
  WayWatcher() {
    for (int card = 1; card <= CardsInPack; ++card) ways_[card] = {PlaceOf(card), PlaceOf(card)};
    QCoreApplication::instance()->installEventFilter(this);
  }

  void NoteModel() {
    for (int card = 1; card <= CardsInPack; ++card)
      if (PlaceOf(card) != ways_[card].to) ways_[card] = {ways_[card].to, PlaceOf(card)};
  }

  int paintings = 0;
  int onTheWay = 0;
  QStringList astray;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint || !object->objectName().startsWith("Cds(")) return false;
    const int card = object->objectName().mid(4).chopped(1).toInt();
    const QPoint place = qobject_cast<QWidget*>(object)->pos();
    const auto& [from, to] = ways_[card];
    constexpr double rounding = 1.5;
    ++paintings;
    if (place != to && place != from) ++onTheWay;
    if (Distance(from, place) + Distance(place, to) > Distance(from, to) + rounding)
      astray << object->objectName();
    return false;
  }

 private:
  struct Way {
    QPoint from;
    QPoint to;
  };
  static QPoint PlaceOf(int card) { return ToPixels(Table.Cds[card].Place); }

  Indexed<Way, 1, CardsInPack> ways_;
};

// The tick counter wraps in the middle of the second and the third deal.
TEST_F(Motion, ADealDrawsNoCardBesideItsWay) {
  constexpr std::uint32_t dealMs = CardsInPack * 2 * 25;
  WayWatcher watcher;
  game.platform.person = [&] { watcher.NoteModel(); };
  for (const std::uint32_t begun : {0U, 0x80000000U - dealMs / 2, 0U - dealMs / 2}) {
    PlacePackDeal();
    game.Turn();
    game.platform.ticks = begun;
    watcher.onTheWay = watcher.paintings = 0;
    Dealer = West;
    DealCards();
    EXPECT_EQ(game.platform.ticks - begun, dealMs);
    EXPECT_TRUE(watcher.astray.isEmpty()) << watcher.astray.join(' ').toStdString();
    EXPECT_GT(watcher.onTheWay, CardsInPack) << begun;
    EXPECT_GT(watcher.paintings, watcher.onTheWay) << begun;
  }
}

TEST_F(Motion, ACardIsThereBeforeThePauseEndsAndSlowsDownOnItsWay) {
  const TablePoint places[] = {{2400, 6600}, {5040, 3720}};
  int moves = 0;
  for (const std::uint32_t wrap : {5000U, 0x80000000U, 0U}) {
    for (const std::uint32_t pause : {25U, 150U, 500U}) {
      game.platform.ticks = wrap - pause / 2;
      MoveTo(Table.Cds[52], places[moves++ % 2]);
      const QPoint goal = ToPixels(Table.Cds[52].Place);
      const double way = Distance(card.pos(), goal);
      Pass(pause / 3, pause);
      EXPECT_LT(Distance(card.pos(), goal), way / 2) << pause;
      EXPECT_GT(Distance(card.pos(), goal), 0) << pause;
      Pass(pause - pause / 3, pause);
      EXPECT_EQ(card.pos(), goal) << pause;
    }
  }
}

// The pause is over when the machine wakes up; in the next one another card begins to move.
TEST_F(Motion, AfterASleepOfAnyLengthTheCardIsThereAndTheNextOneGlides) {
  const QWidget& next = game.Find("Cds(51)");
  for (const std::uint32_t asleepMs : {3'600'000U, 0x7FFFFFFFU, 0xFFFF0000U}) {
    MoveTo(Table.Cds[52], {2400, 6600});
    game.platform.ProcessEvents(500);
    ASSERT_NE(card.pos(), ToPixels(Table.Cds[52].Place)) << asleepMs;
    game.platform.ticks += asleepMs;
    MoveTo(Table.Cds[51], {2400, 6600});
    game.platform.ProcessEvents(500);
    EXPECT_EQ(card.pos(), ToPixels(Table.Cds[52].Place)) << asleepMs;
    Pass(100, 450);
    EXPECT_GT(Distance(next.pos(), ToPixels(Table.Cds[51].Place)), 0) << asleepMs;
    Pass(350, 350);
    EXPECT_EQ(next.pos(), ToPixels(Table.Cds[51].Place)) << asleepMs;
    PlacePackDeal();
    game.Turn();
  }
}

TEST_F(Motion, ACardIsAtItsPlaceAtOnceUnlessItGlidesUndisturbed) {
  const auto isThere = [&] { return card.pos() == ToPixels(Table.Cds[52].Place); };
  const auto moveTo = [&](TablePoint place) {
    MoveTo(Table.Cds[52], place);
    game.platform.ProcessEvents(500);
  };
  constexpr TablePoint places[] = {{2400, 6600}, {5040, 3720}};
  moveTo(places[0]);
  EXPECT_FALSE(isThere());
  SetToolTip(Table.Cds[52], {"news"});
  game.platform.ProcessEvents(500);
  EXPECT_TRUE(isThere()) << "the card has changed";
  Hide(Table.Cds[52]);
  game.Turn();
  Show(Table.Cds[52]);
  moveTo(places[1]);
  EXPECT_TRUE(isThere()) << "it was not seen before";
  moveTo(places[0]);
  EXPECT_FALSE(isThere());
  game.platform.Motion().Allow(false);
  EXPECT_TRUE(isThere()) << "no motion is wanted any more";
  moveTo(places[1]);
  EXPECT_TRUE(isThere()) << "no motion is wanted";
}

TEST_F(Motion, NothingIsDueWhileThePersonThinks) {
  MoveTo(Table.Cds[52], {2400, 6600});
  const auto due = [&] { return game.platform.Motion().MsToNextFrame(game.platform.Ticks()); };
  game.platform.ProcessEvents(Forever);
  EXPECT_NE(due(), Forever);
  for (int frame = 1; frame <= 20; ++frame) game.platform.ProcessEvents(Forever);
  EXPECT_EQ(due(), Forever);
  EXPECT_EQ(card.pos(), ToPixels(TablePoint{2400, 6600}));
}

TEST(Desktop, EachKindOfDesktopCanAskForLessMotion) {
  const struct {
    const char* group;
    const char* name;
    QVariant asks;
    QVariant asksNot;
  } cases[] = {
      {"org.freedesktop.appearance", "reduced-motion", 1U, 0U},
      {"org.gnome.desktop.interface", "enable-animations", false, true},
      {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0", "0.5"},
  };
  for (const auto& [group, name, asks, asksNot] : cases) {
    EXPECT_TRUE(AsksForReducedMotion({{group, {{name, asks}}}})) << group;
    EXPECT_FALSE(AsksForReducedMotion({{group, {{name, asksNot}}}})) << group;
    EXPECT_FALSE(AsksForReducedMotion({{"some.other.group", {{name, asks}}}})) << group;
  }
  EXPECT_FALSE(AsksForReducedMotion({}));
}

// A settings portal of our own on the tests' own session bus.
class Portal : public QDBusVirtualObject {
 public:
  bool animates = true;

  [[nodiscard]] QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    const DesktopSettings settings{
        {"org.gnome.desktop.interface", {{"enable-animations", animates}}}};
    return message.member() == "ReadAll" &&
           bus.send(message.createReply(QVariant::fromValue(settings)));
  }
};

TEST(Desktop, TheSettingsPortalIsAskedAndFollowed) {
  auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
  ASSERT_TRUE(bus.isConnected()) << "there is no session bus here";
  qDBusRegisterMetaType<DesktopSettings>();
  Portal portal;
  const QString path = "/org/freedesktop/portal/desktop";
  ASSERT_TRUE(bus.registerVirtualObject(path, &portal));
  ASSERT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
  QList<bool> told;
  const DesktopMotion desktop([&](bool wantsMotion) { told << wantsMotion; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 1; }, PatienceMs));
  portal.animates = false;
  auto news = QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged");
  news << "org.gnome.desktop.interface"
       << "enable-animations" << QVariant::fromValue(QDBusVariant(false));
  bus.send(news);
  ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 2; }, PatienceMs));
  EXPECT_EQ(told, (QList<bool>{true, false}));
  QDBusConnection::disconnectFromBus("portal");
}

}  // namespace
}  // namespace Parlino
