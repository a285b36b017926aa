// Brings what the parts of the table say to the assistive tools of the desktop.
#pragma once

#include <functional>
#include <vector>

#include <QString>

#include "table/window/Speaker.h"

class QWidget;

namespace Parlino {

// Lets the toolkit find out what the program's widgets say. Once, before the first of them is
// asked.
void IntroduceSpeakers();

// Has listening tools read a notification: they do so when it comes to be seen.
void ReadOut(QWidget* notification);

// Tells listening tools when a part of the table says something else than before, and only then.
class SpokenChanges {
 public:
  explicit SpokenChanges(const QWidget& table) : table_(table) {}

  // Looks at every speaker of the table; does nothing while no tool listens.
  void Tell();

  // Whether a tool listens, and how it is told; the toolkit knows both.
  std::function<bool()> isHeard = QAccessible::isActive;
  std::function<void(QWidget* widget, QAccessible::Event what)> report = ReportToTools;

 private:
  struct Told {
    QWidget* widget;
    const Speaker* speaker;
    Spoken last;
  };

  static void ReportToTools(QWidget* widget, QAccessible::Event what);
  void MeetSpeakers();

  const QWidget& table_;
  std::vector<Told> told_;
};

}  // namespace Parlino
