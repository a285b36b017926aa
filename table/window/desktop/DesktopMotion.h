// Whether the desktop wants less motion. Desktops say so through their settings portal on the
// session bus; without a bus or a portal, motion stays on.
#pragma once

#include <functional>

#include <QMap>
#include <QObject>
#include <QVariantMap>

namespace Parlino {

// The desktop's settings by group and name.
using DesktopSettings = QMap<QString, QVariantMap>;

bool AsksForReducedMotion(const DesktopSettings& settings);

class DesktopMotion : public QObject {
  Q_OBJECT

 public:
  // Asks the desktop and calls `tell` with the answer, now or soon, and again whenever the player
  // changes the desktop's settings. Nothing waits for it.
  explicit DesktopMotion(std::function<void(bool wantsMotion)> tell);

 private:
  Q_SLOT void Ask();

  std::function<void(bool)> tell_;
};

}  // namespace Parlino
