// What the parts of the table tell assistive tools. They are asked only when such a tool listens,
// so that nobody else pays for it.
#pragma once

#include <functional>

#include <QAccessible>
#include <QString>

namespace Parlino {

struct Spoken {
  QAccessible::Role role = QAccessible::StaticText;
  QString name = {};
  bool isOnlyForEyes = false;  // says nothing that is not said elsewhere
  bool canBePressed = false;
};

class Speaker {
 public:
  virtual ~Speaker() = default;

  std::function<Spoken()> speak = [] { return Spoken{.isOnlyForEyes = true}; };
  // Does what a click does.
  std::function<void()> press = [] {};
};

// A widget that has something of its own to say.
template <class Widget>
class Speaking : public Widget, public Speaker {
 public:
  using Widget::Widget;
};

}  // namespace Parlino
