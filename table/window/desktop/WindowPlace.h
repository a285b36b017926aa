// Where windows open on the screen.
#pragma once

#include <QScreen>
#include <QSize>
#include <QWidget>

namespace Parlino {

// The room for a window on this screen, allowing for any usual frame.
QSize RoomForWindow(const QScreen& screen);

// To be called before the window is shown: gives it this size and puts it in the middle of the
// screen, allowing for the frame that the desktop will add. A window that is too large is made to
// fit.
void PutInMiddleOfScreen(QWidget& window, QSize size, const QScreen& screen);

// Shows the window in front of the others, even if it is already open.
void ShowInFront(QWidget& window);

}  // namespace Parlino
