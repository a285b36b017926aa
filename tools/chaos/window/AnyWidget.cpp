#include "tools/chaos/window/AnyWidget.h"

#include <algorithm>

#include <QApplication>

namespace Parlino {
namespace {

// Qt lists its windows in no particular order, but a run must be repeatable.
bool ComesBefore(const QWidget* one, const QWidget* other) {
  const QString names[] = {one->objectName(), other->objectName()};
  if (names[0] != names[1]) return names[0] < names[1];
  return QString(one->metaObject()->className()) < other->metaObject()->className();
}

QWidget* Choose(const QList<QWidget*>& widgets, ChaosPerson& person) {
  return widgets.isEmpty() ? nullptr
                           : widgets.at(person.NextBelow(static_cast<int>(widgets.size())));
}

}  // namespace

QWidget* FindAny(const QString& name) {
  for (QWidget* widget : QApplication::allWidgets())
    if (widget->objectName() == name) return widget;
  return nullptr;
}

QWidget* ChooseWindow(ChaosPerson& person) {
  QList<QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->windowType() != Qt::ToolTip) windows.append(window);
  std::ranges::sort(windows, ComesBefore);
  return Choose(windows, person);
}

QWidget* ChoosePart(ChaosPerson& person) {
  QWidget* window = ChooseWindow(person);
  if (window == nullptr) return nullptr;
  QList<QWidget*> parts = window->findChildren<QWidget*>() << window;
  parts.removeIf(
      [window](const QWidget* part) { return !part->isVisible() || part->window() != window; });
  return Choose(parts, person);
}

}  // namespace Parlino
