// The score frame as assistive tools read it: a table with headers.
#pragma once

#include <QAccessible>

class QWidget;

namespace Parlino {

// The voice of the score frame or of one of its texts; none for any other widget.
QAccessibleInterface* FindVoiceOfScores(QWidget* widget);

}  // namespace Parlino
