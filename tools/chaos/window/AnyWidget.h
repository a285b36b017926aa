// Widgets that may be there or not.
#pragma once

#include <QString>
#include <QWidget>

#include "tests/chaos/ChaosPerson.h"

namespace Parlino {

// The widget of that name, or nothing.
QWidget* FindAny(const QString& name);

// A window that is on the screen, and a part of one; nothing when no window is.
QWidget* ChooseWindow(ChaosPerson& person);
QWidget* ChoosePart(ChaosPerson& person);

}  // namespace Parlino
