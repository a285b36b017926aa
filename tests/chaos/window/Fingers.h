// The mouse and the keys: clicks, movements and keystrokes as a person makes them, on purpose or by
// mistake, and the widgets they may fall on.
#pragma once

#include <QPoint>
#include <QString>
#include <QTest>
#include <QWidget>

#include "tests/chaos/ChaosSession.h"

namespace Parlino {

// The widget with that name, or nullptr.
QWidget* FindAny(const QString& name);
// The windows that are on the screen, always in the same order.
QWidgetList WindowsThere();

class Fingers {
 public:
  explicit Fingers(ChaosSession& thisSession) : session(thisSession) {}

  // Any window that is on the screen, and any visible part of one; nullptr if there is none.
  QWidget* ChooseWindow();
  QWidget* ChoosePart();

  // Each returns whether the widget was on the screen; if it was not, it gets the events all the
  // same, like events that arrive a moment too late.

  // Clicks on a spot of the widget that is visible even when the next card covers the rest; now and
  // then fumbles instead, which may be no click at all.
  bool Click(QWidget& widget);
  // One click of the left button at a spot of the widget.
  bool ClickAt(QWidget& widget, QPoint spot);
  // Does something with any mouse button, possibly outside the widget.
  bool Fumble(QWidget& widget);
  bool Move(QWidget& widget);

  // Presses and releases a key for whatever has the focus, if anything has.
  void Strike(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  // Enters text where the focus is: with the keys, by an input method or from the clipboard.
  void Write(const QString& text);

  ChaosSession& session;

 private:
  int Below(int count) { return session.person.NextBelow(count); }
  bool Once(int odds) { return session.person.Once(odds); }
  void Touch(QTest::MouseAction action, QWidget* widget, Qt::MouseButton button, QPoint spot);
  QPoint AnySpot(const QWidget& widget);

  bool isThroughWindow_ = false;
};

}  // namespace Parlino
