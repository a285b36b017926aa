// Whether the desktop wants less motion.
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QTest>

#include "WindowGame.h"
#include "table/window/desktop/DesktopMotion.h"

namespace Parlino {
namespace {

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
