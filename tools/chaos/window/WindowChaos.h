// Runs of the program at the real window, one after the other, with a person who may do anything at
// any time.
#pragma once

#include <optional>

#include <QTemporaryDir>

#include "tools/chaos/window/ChaosPlatform.h"
#include "tools/chaos/window/DiskTrouble.h"
#include "tools/chaos/window/Pranks.h"
#include "tools/chaos/window/TableWatch.h"
#include "tools/chaos/window/WindowDeeds.h"

namespace Parlino {

// Qt's widgets have timers of their own, which do not follow virtual time; without them a run can
// be repeated.
class TimerStopper : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return event->type() == QEvent::Timer && watched->isWidgetType();
  }
};

class WindowChaos {
 public:
  WindowChaos(int hands, std::uint64_t seed);

  // Plays until so many hands have been scored. Returns the exit status: 1 if a rule was broken,
  // which has then been reported.
  int Play();
  // Reports the rule and the last events.
  void Tell(const std::string& rule) const;

 private:
  struct EnoughHands {};

  void SetUpProgram();
  void PlayProgram();
  void Act();
  void CheckWhatIsShown();
  bool Do(const Deed& deed);
  void LookForHang();

  int hands_;
  ChaosSession session_;
  Fingers fingers_{session_};
  WindowDeeds deeds_{session_, fingers_};
  Pranks pranks_{session_, fingers_};
  TimerStopper timerStopper_;
  QTemporaryDir folder_;
  DiskTrouble trouble_;
  std::optional<ChaosPlatform> platform_;
  std::optional<TableWatch> watch_;
  int calmness_ = 1;  // deeds for each prank; chosen anew for each program
  int progress_ = 0;
  bool isActing_ = false;
  bool hasLoopOfItsOwn_ = false;
};

}  // namespace Parlino
