// Where windows open.
#pragma once

#include <QScreen>
#include <QSize>
#include <QWidget>

namespace Parlino {

// The room for a window within its frame on this screen, whatever the frame.
QSize RoomForWindow(const QScreen& screen);

// Gives the window, before it is shown, its size and the middle of the screen, the frame included
// that the desktop will put round it. One that is too large for the screen is made to fit.
void PutInMiddleOfScreen(QWidget& window, QSize size, const QScreen& screen);

// Shows the window in front of the others, also one that is open already.
void ShowInFront(QWidget& window);

}  // namespace Parlino
