// The mouse and the keys: clicks, moves and strokes as a person makes them, and as one makes them
// by mistake.
#pragma once

#include <QPoint>
#include <QString>
#include <QTest>
#include <QWidget>

#include "tests/chaos/ChaosSession.h"

namespace Parlino {

class Fingers {
 public:
  explicit Fingers(ChaosSession& session) : session_(session) {}

  // Each says whether the widget was on the screen; a widget that is not gets its events all the
  // same, as those that are late by a moment.

  // Clicks on the widget where it is seen even when the next card lies over it; now and then in
  // another way, which may be no click at all.
  bool Click(QWidget& widget);
  // One click of the left button at a spot of the widget.
  bool ClickAt(QWidget& widget, QPoint spot);
  // Something with any button, also beside the widget.
  bool Fumble(QWidget& widget);
  bool Move(QWidget& widget);

  // Strikes a key for whatever has the focus, if anything has.
  void Strike(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  // Writes for whatever has the focus: by the keys, by an input method or from the clipboard.
  void Write(const QString& text);

 private:
  ChaosPerson& Person() { return session_.person; }
  void Touch(QTest::MouseAction action, QWidget* widget, Qt::MouseButton button, QPoint spot);
  QPoint AnySpot(const QWidget& widget);

  ChaosSession& session_;
  bool isThroughWindow_ = false;
};

}  // namespace Parlino
