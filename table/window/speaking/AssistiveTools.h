// Passes what the parts of the table say to the desktop's assistive tools.
#pragma once

#include <functional>
#include <vector>

#include <QString>

#include "table/window/speaking/Speaker.h"

class QWidget;

namespace Parlino {

// Tells Qt how to find out what the program's widgets say. To be called once, before any of them is
// asked.
void IntroduceSpeakers();

// Tells listening tools of one event. They read out a notification that is shown.
void TellTools(QWidget* widget, QAccessible::Event what);

// Tells listening tools when a part of the table says something new, and only then.
class SpokenChanges {
 public:
  explicit SpokenChanges(const QWidget& table) : table_(table) {}

  // Checks everything on the table that speaks; does nothing while no tool is listening.
  void Tell();

  // Whether a tool is listening, and how to tell it; by default Qt answers both.
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
