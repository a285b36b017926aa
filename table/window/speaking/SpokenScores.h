// The score frame as assistive tools read it: a table with headers.
#pragma once

#include <QAccessible>

class QWidget;

namespace Parlino {

// The accessible object for the score frame or one of its texts; nullptr for any other widget.
QAccessibleInterface* FindVoiceOfScores(QWidget* widget);

}  // namespace Parlino
