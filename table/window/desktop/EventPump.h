// Lets Qt do its work, and sleeps whenever there is none.
#pragma once

#include <cstdint>

#include <QBasicTimer>
#include <QObject>

namespace Parlino {

class EventPump : public QObject {
 public:
  EventPump();

  // Sleeps until Qt has something to do or the time is up, and then lets Qt do it. `Forever` sets
  // no timer at all.
  void Wait(std::uint32_t atMostMs);

  // Whether the desktop's session has asked the program to end.
  [[nodiscard]] bool EndIsWanted() const { return endIsWanted_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  QBasicTimer waker_;
  bool endIsWanted_ = false;
};

}  // namespace Parlino
