#include "table/window/desktop/EventPump.h"

#include <algorithm>
#include <limits>

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

#include "platform/Platform.h"

namespace Parlino {

EventPump::EventPump() {
  QCoreApplication::instance()->installEventFilter(this);
}

void EventPump::Wait(std::uint32_t atMostMs) {
  constexpr std::uint32_t longest = std::numeric_limits<int>::max();
  if (atMostMs == Forever)
    waker_.stop();
  else
    waker_.start(static_cast<int>(std::min(atMostMs, longest)), Qt::PreciseTimer, this);
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  waker_.stop();
}

// No event loop of Qt's is running that its quit request could end, so the request is noted here.
bool EventPump::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Quit) return false;
  endIsWanted_ = true;
  return true;
}

void EventPump::timerEvent(QTimerEvent*) {
  waker_.stop();
}

}  // namespace Parlino
