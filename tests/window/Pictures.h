// Pictures of windows that somebody has looked at.
#pragma once

#include <string>

#include <QString>
#include <QWidget>

namespace Parlino {

// Whether pictures are kept as they are drawn now, instead of compared.
inline bool picturesAreAccepted = false;

// Where the widget, which may have letters in it, differs from the picture that is kept under the
// name, one place a line.
std::string DifferencesFromKept(QWidget& widget, const QString& name);

// Expects no difference, or keeps the picture as it is now. A control that is missing, at another
// place or in another colour is a difference; letters drawn by another version of a font library
// are none.
void ExpectAsKept(QWidget& widget, const QString& name);

}  // namespace Parlino
