// What the parts of the table tell assistive tools. They are asked only while such a tool is
// listening, so that it costs nothing otherwise.
#pragma once

#include <functional>

#include <QAccessible>
#include <QString>

namespace Parlino {

struct Spoken {
  QAccessible::Role role = QAccessible::StaticText;
  QString name = {};
  bool isOnlyForEyes = false;  // hidden from tools
  bool canBePressed = false;
};

class Speaker {
 public:
  virtual ~Speaker() = default;

  std::function<Spoken()> speak = [] { return Spoken{.isOnlyForEyes = true}; };
  // Does what a click does.
  std::function<void()> press = [] {};
};

// A widget that tells tools something of its own.
template <class Widget>
class Speaking : public Widget, public Speaker {
 public:
  using Widget::Widget;
};

}  // namespace Parlino
