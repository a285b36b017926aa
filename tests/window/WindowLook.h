// All windows as a person sees them at one moment, and in words what has changed since another.
#pragma once

#include <map>

#include <QColor>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace Parlino {

// What can be said of each part that is seen, by kind: "at", "text", "tip". Nothing in it depends
// on how wide or high letters are.
using PartLook = std::map<QString, QString>;
struct ByName {
  bool operator()(const QString& one, const QString& other) const;
};
using WindowLook = std::map<QString, PartLook, ByName>;

WindowLook LookAtWindows();

// One line for each part that has changed; parts that have changed alike share it.
QStringList TellChanges(const WindowLook& before, const WindowLook& now);

// The name of a widget, a card being called as in a column on bridge: "QH".
QString NameOfPart(const QWidget& widget);

// The places of all parts of a window.
QStringList TellPlaces(const QWidget& window);

// What is on the screen where the widget is.
QImage ShotOf(const QWidget& widget);

}  // namespace Parlino
