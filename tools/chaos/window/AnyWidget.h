// Widgets that may or may not exist.
#pragma once

#include <QString>
#include <QWidget>

#include "tests/chaos/ChaosPerson.h"

namespace Parlino {

// The widget with that name, or nullptr.
QWidget* FindAny(const QString& name);

// Any window that is on the screen, and any visible part of one; nullptr if there is none.
QWidget* ChooseWindow(ChaosPerson& person);
QWidget* ChoosePart(ChaosPerson& person);

}  // namespace Parlino
