// Runs of the program at the real window, with a person who may do anything at any time.
#pragma once

#include <optional>

#include <QTemporaryDir>

#include "tests/chaos/ChaosRun.h"
#include "tests/chaos/window/ChaosPlatform.h"
#include "tests/chaos/window/DiskTrouble.h"
#include "tests/chaos/window/Fingers.h"
#include "tests/chaos/window/WindowRules.h"

namespace Parlino {

// Qt's widgets have timers of their own, which do not follow virtual time; without them a run can
// be repeated.
class TimerStopper : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return event->type() == QEvent::Timer && watched->isWidgetType();
  }
};

class WindowChaos : public ChaosRun {
 public:
  explicit WindowChaos(const ChaosOptions& options);

 protected:
  void SetUp() override;
  bool Do(const Deed& deed) override;
  void LookAtEnd() override;

 private:
  void Act();
  void CheckWhatIsShown();
  void LookForHang();

  Fingers fingers_{session};
  TimerStopper timerStopper_;
  QTemporaryDir folder_;
  DiskTrouble trouble_{folder_.path().toStdString()};
  std::optional<ChaosPlatform> platform_;
  std::optional<WindowRules> rules_;
  int calmness_ = 1;  // deeds for each prank; chosen anew for each program
  int progress_ = 0;
  bool isActing_ = false;
  bool hasLoopOfItsOwn_ = false;
};

}  // namespace Parlino
