// Widgets are named after the controls that they show, so that whoever looks at the window from
// outside, a test for instance, finds them.
#pragma once

#include <QString>

namespace Parlino {

// "Cds(17)" for member 17 of the control array Cds.
inline QString MemberName(const char* array, int index) {
  return QString("%1(%2)").arg(array).arg(index);
}

template <class Widget>
Widget* Named(Widget* widget, const QString& name) {
  widget->setObjectName(name);
  return widget;
}

}  // namespace Parlino
