// Brings what the parts of the table say to the assistive tools of the desktop.
#pragma once

#include <functional>
#include <vector>

#include <QString>

#include "table/window/speaking/Speaker.h"

class QWidget;

namespace Parlino {

// Lets the toolkit find out what the program's widgets say. Once, before the first of them is
// asked.
void IntroduceSpeakers();

// Tells listening tools of one event. A notification that is shown is read out by them.
void TellTools(QWidget* widget, QAccessible::Event what);

// Tells listening tools when a part of the table says something else than before, and only then.
class SpokenChanges {
 public:
  explicit SpokenChanges(const QWidget& table) : table_(table) {}

  // Looks at every speaker of the table; does nothing while no tool listens.
  void Tell();

  // Whether a tool listens, and how it is told; the toolkit knows both.
  std::function<bool()> isHeard = QAccessible::isActive;
  std::function<void(QWidget* widget, QAccessible::Event what)> report = TellTools;

 private:
  struct Told {
    QWidget* widget;
    const Speaker* speaker;
    Spoken last;
  };

  void MeetSpeakers();

  const QWidget& table_;
  std::vector<Told> told_;
};

}  // namespace Parlino
