// Lets the toolkit do its work, asleep whenever there is none.
#pragma once

#include <cstdint>

#include <QBasicTimer>
#include <QObject>

namespace Parlino {

class EventPump : public QObject {
 public:
  EventPump();

  // Sleeps until the toolkit has something to do or the time is up, and does it. `Forever` sets no
  // timer at all.
  void Wait(std::uint32_t atMostMs);

  // Whether the session asks the program to end.
  [[nodiscard]] bool EndIsWanted() const { return endIsWanted_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  QBasicTimer waker_;
  bool endIsWanted_ = false;
};

}  // namespace Parlino
