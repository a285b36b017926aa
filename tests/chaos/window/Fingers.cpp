#include "tests/chaos/window/Fingers.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QPointer>
#include <QWindow>

namespace Parlino {
namespace {

QWidget* WhatHasTheFocus() {
  QWidget* window = QApplication::activePopupWidget();
  if (window == nullptr) window = QApplication::activeModalWidget();
  if (window == nullptr) window = QApplication::activeWindow();
  if (window == nullptr) return nullptr;
  return window->focusWidget() != nullptr ? window->focusWidget() : window;
}

// The text that a keyboard sends with the key.
QString TextOf(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return "\r";
  if (key == Qt::Key_Tab) return "\t";
  if (key > 0xFF) return {};
  const QChar letter(key);
  return modifiers.testFlag(Qt::ShiftModifier) ? letter : letter.toLower();
}

}  // namespace

QWidget* FindAny(const QString& name) {
  for (QWidget* widget : QApplication::allWidgets())
    if (widget->objectName() == name) return widget;
  return nullptr;
}

// Qt lists its windows in no particular order, but a run must be repeatable.
QWidgetList WindowsThere() {
  QWidgetList windows = QApplication::topLevelWidgets();
  windows.removeIf([](const QWidget* window) {
    return !window->isVisible() || window->windowType() == Qt::ToolTip;
  });
  std::ranges::sort(windows, {}, [](const QWidget* window) {
    return std::pair(window->objectName(), QString(window->metaObject()->className()));
  });
  return windows;
}

QWidget* Fingers::ChooseWindow() {
  const QWidgetList windows = WindowsThere();
  return windows.isEmpty() ? nullptr : windows.at(Below(static_cast<int>(windows.size())));
}

QWidget* Fingers::ChoosePart() {
  QWidget* window = ChooseWindow();
  if (window == nullptr) return nullptr;
  QWidgetList parts = window->findChildren<QWidget*>() << window;
  parts.removeIf(
      [window](const QWidget* part) { return !part->isVisible() || part->window() != window; });
  return parts.isEmpty() ? nullptr : parts.at(Below(static_cast<int>(parts.size())));
}

// A desktop's event reaches its widget through the window, which may be blocked by a box in front
// of it. Events that were on their way when the box opened go straight to the widget.
void Fingers::Touch(QTest::MouseAction action, QWidget* widget, Qt::MouseButton button,
                    QPoint spot) {
  QWindow* window = widget->window()->windowHandle();
  if (isThroughWindow_ && window != nullptr && widget->isVisible())
    QTest::mouseEvent(action, window, button, {}, widget->mapTo(widget->window(), spot));
  else
    QTest::mouseEvent(action, widget, button, {}, spot);
}

// Mostly inside the widget, often at its edge.
QPoint Fingers::AnySpot(const QWidget& widget) {
  constexpr int far = 300;
  if (Once(6)) return {Below(2 * far) - far, Below(2 * far) - far};
  if (Once(3)) return {widget.width() - Below(2), Below(widget.height() + 1)};
  return {Below(widget.width() + 1), Below(widget.height() + 1)};
}

bool Fingers::ClickAt(QWidget& widget, QPoint spot) {
  const QPointer<QWidget> target(&widget);
  const bool isSeen = widget.isVisible();
  isThroughWindow_ = Once(2);
  Touch(QTest::MousePress, target, Qt::LeftButton, spot);
  if (target != nullptr) Touch(QTest::MouseRelease, target, Qt::LeftButton, spot);
  return isSeen;
}

bool Fingers::Click(QWidget& widget) {
  if (Once(5)) return Fumble(widget);
  constexpr int seenLeft = 8;
  return ClickAt(widget, {std::min(seenLeft, widget.width() / 2), widget.height() / 2});
}

bool Fingers::Fumble(QWidget& widget) {
  constexpr QTest::MouseAction actions[] = {QTest::MousePress, QTest::MouseRelease,
                                            QTest::MouseDClick, QTest::MouseMove};
  constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                         Qt::MiddleButton, Qt::BackButton};
  const QPointer<QWidget> target(&widget);
  const bool isSeen = widget.isVisible();
  isThroughWindow_ = Once(2);
  for (int count = 1 + Below(4); count > 0 && target != nullptr; --count) {
    const QTest::MouseAction action = actions[Below(4)];
    const Qt::MouseButton button = buttons[Below(5)];
    const QPoint spot = AnySpot(widget);
    session.AddToNote(QString("mouse action %1 of button %2 at %3 %4")
                          .arg(action)
                          .arg(button)
                          .arg(spot.x())
                          .arg(spot.y())
                          .toStdString());
    Touch(action, target, button, spot);
  }
  return isSeen;
}

bool Fingers::Move(QWidget& widget) {
  isThroughWindow_ = Once(2);
  const bool isSeen = widget.isVisible();
  Touch(QTest::MouseMove, &widget, Qt::NoButton, AnySpot(widget));
  return isSeen;
}

// The press may close the window; then nobody receives the release.
void Fingers::Strike(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  const QPointer<QWidget> focus = WhatHasTheFocus();
  if (focus == nullptr) return;
  const QPointer<QWindow> window = focus->window()->windowHandle();
  const bool isThroughWindow = Once(2) && window != nullptr && focus->isVisible();
  const auto send = [&](bool isDown, Qt::Key code, const QString& text) {
    if (isThroughWindow && window != nullptr)
      QTest::simulateEvent(window.data(), isDown, code, modifiers, text, false);
    else if (!isThroughWindow && focus != nullptr)
      QTest::simulateEvent(focus.data(), isDown, code, modifiers, text, false);
  };
  const bool isAlt = modifiers.testFlag(Qt::AltModifier);  // its press opens the menus
  if (isAlt) send(true, Qt::Key_Alt, {});
  send(true, key, TextOf(key, modifiers));
  send(false, key, TextOf(key, modifiers));
  if (isAlt) send(false, Qt::Key_Alt, {});
}

void Fingers::Write(const QString& text) {
  QWidget* focus = WhatHasTheFocus();
  if (focus == nullptr) return;
  const bool hasInputMethod = focus->testAttribute(Qt::WA_InputMethodEnabled);
  switch (Below(hasInputMethod ? 3 : 2)) {
    case 0:
      for (const QChar letter : text.left(30))
        Strike(static_cast<Qt::Key>(letter.toUpper().unicode()),
               letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
      return;
    case 1:
      QApplication::clipboard()->setText(text);
      return Strike(Qt::Key_V, Qt::ControlModifier);
    default:
      QInputMethodEvent event;
      event.setCommitString(text);
      QApplication::sendEvent(focus, &event);
  }
}

}  // namespace Parlino
