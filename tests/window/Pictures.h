// Pictures of windows that somebody has looked at.
#pragma once

#include <QString>
#include <QWidget>

namespace Parlino {

// Whether pictures are kept as they are drawn now, instead of compared.
inline bool picturesAreAccepted = false;

// Expects no difference, or keeps the picture as it is now. A control that is missing, at another
// place or in another colour is a difference; letters drawn by another version of a font library
// are none.
void ExpectAsKept(QWidget& widget, const QString& name);

}  // namespace Parlino
