#include "table/window/desktop/DesktopMotion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>

namespace Parlino {
namespace {

constexpr auto Service = "org.freedesktop.portal.Desktop";
constexpr auto Path = "/org/freedesktop/portal/desktop";
constexpr auto Interface = "org.freedesktop.portal.Settings";

constexpr auto CommonGroup = "org.freedesktop.appearance";
constexpr auto GnomeGroup = "org.gnome.desktop.interface";
constexpr auto KdeGroup = "org.kde.kdeglobals.KDE";

DesktopSettings ReadSettings(const QDBusMessage& reply) {
  DesktopSettings settings;
  if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
    settings = qdbus_cast<DesktopSettings>(reply.arguments().constFirst());
  return settings;
}

}  // namespace

bool AsksForReducedMotion(const DesktopSettings& settings) {
  const QVariant common = settings[CommonGroup]["reduced-motion"];
  const QVariant gnome = settings[GnomeGroup]["enable-animations"];
  const QVariant kde = settings[KdeGroup]["AnimationDurationFactor"];
  return common.toUInt() == 1 || (gnome.isValid() && !gnome.toBool()) ||
         (kde.isValid() && kde.toDouble() == 0);
}

DesktopMotion::DesktopMotion(std::function<void(bool)> tell) : tell_(std::move(tell)) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(Service, Path, Interface, "SettingChanged", this, SLOT(Ask()));
  Ask();
}

void DesktopMotion::Ask() {
  QDBusMessage question = QDBusMessage::createMethodCall(Service, Path, Interface, "ReadAll");
  question << QStringList{CommonGroup, GnomeGroup, KdeGroup};
  auto* answer =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, [this, answer] {
    tell_(!AsksForReducedMotion(ReadSettings(answer->reply())));
    answer->deleteLater();
  });
}

}  // namespace Parlino
