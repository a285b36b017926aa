#include "table/window/WindowPlace.h"

namespace Parlino {

void PutInMiddleOfScreen(QWidget& window, QSize size, const QScreen& screen) {
  constexpr QSize roomForFrame(8, 40);
  const QRect room = screen.availableGeometry();
  QRect place(QPoint(0, 0), size.boundedTo(room.size() - roomForFrame));
  place.moveCenter(room.center());
  window.setGeometry(place);
}

void ShowInFront(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace Parlino
