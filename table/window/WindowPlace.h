// Where windows open.
#pragma once

#include <QScreen>
#include <QSize>
#include <QWidget>

namespace Parlino {

// Gives the window its size and the middle of the screen. One that is too large for the screen is
// made to fit.
void PutInMiddleOfScreen(QWidget& window, QSize size, const QScreen& screen);

// Shows the window in front of the others, also one that is open already.
void ShowInFront(QWidget& window);

}  // namespace Parlino
