#include "table/window/desktop/WindowPlace.h"

#include <algorithm>

#include <QEvent>
#include <QWindow>

namespace Parlino {
namespace {

// The frame that the desktop put around the last window shown; until then, a typical one.
QMargins frameToExpect(1, 28, 1, 1);

// On a screen that is too small, it is the top of the window that must stay visible.
void MoveToMiddle(QWidget& window, const QRect& room, const QMargins& frame) {
  const QSize spare = room.size() - window.size().grownBy(frame);
  window.move(room.left() + std::max(0, spare.width() / 2),
              room.top() + std::max(0, spare.height() / 2));
}

// The size of a frame is up to the desktop, and is known only once the window is shown. The first
// paint is the last moment at which it can be moved unnoticed.
class MiddleWithFrame : public QObject {
 public:
  MiddleWithFrame(QWidget& window, const QRect& room)
      : QObject(&window), window_(window), room_(room) {
    window.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    const QWindow* onScreen = window_.windowHandle();
    if (event->type() != QEvent::Paint || onScreen == nullptr || !onScreen->isExposed())
      return false;
    window_.removeEventFilter(this);
    deleteLater();
    const QMargins frame = onScreen->frameMargins();
    const bool fillsScreen = window_.isMaximized() || window_.isFullScreen();
    if (frame != expected_ && !fillsScreen) MoveToMiddle(window_, room_, frame);
    frameToExpect = frame;
    return false;
  }

 private:
  QWidget& window_;
  QRect room_;
  QMargins expected_ = frameToExpect;
};

}  // namespace

QSize RoomForWindow(const QScreen& screen) {
  constexpr QSize roomForFrame(2, 40);
  return screen.availableGeometry().size() - roomForFrame;
}

void PutInMiddleOfScreen(QWidget& window, QSize size, const QScreen& screen) {
  window.resize(size.boundedTo(RoomForWindow(screen)));
  MoveToMiddle(window, screen.availableGeometry(), frameToExpect);
  new MiddleWithFrame(window, screen.availableGeometry());
}

void ShowInFront(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace Parlino
