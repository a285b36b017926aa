#include "tests/chaos/window/Hands.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include "table/window/painting/Design.h"
#include "tests/window/WindowGame.h"

namespace Parlino {
namespace {

constexpr const char* HarmlessCommands[] = {"MnuRules", "MnuAbout",    "MnuPname",
                                            "MnuView",  "MnuBot3Name", "ErasePoints"};

// What a mouse can do, after the numbers that Qt's tests have for it.
constexpr int TurnWheel = QTest::MouseMove + 1;
constexpr int AskForMenu = QTest::MouseMove + 2;

QWidget* WindowInFront() {
  QWidget* window = QApplication::activePopupWidget();
  if (window == nullptr) window = QApplication::activeModalWidget();
  return window != nullptr ? window : QApplication::activeWindow();
}

// Often it is the one that takes the input.
QWidget* AnyWindow(ChaosPerson& person) {
  QWidget* front = WindowInFront();
  if (front != nullptr && front->isVisible() && person.Once(2)) return front;
  return person.OneOf(WindowsThere());
}

// Now and then it is a card or the like that is not on the screen: events may arrive a moment too
// late.
QWidget* AnyPart(Chaos& chaos) {
  QWidget* window = AnyWindow(chaos.person);
  QWidgetList parts = window->findChildren<QWidget*>() << window;
  const bool isLate = chaos.person.Once(10);
  parts.removeIf([&](QWidget* part) {
    const bool isHidden = !part->isVisible() && (!isLate || !part->objectName().contains('('));
    return part->window() != window || isHidden;
  });
  QWidget* part = chaos.person.OneOf(parts);
  chaos.Note((part->metaObject()->className() + (" " + part->objectName())).toStdString());
  return part;
}

// Mostly inside the widget, often at its edge.
QPoint AnySpot(const QWidget& widget, ChaosPerson& person) {
  constexpr int far = 300;
  if (person.Once(6)) return {person.Below(2 * far) - far, person.Below(2 * far) - far};
  const int fromRight = person.Below(person.Once(3) ? 2 : widget.width() + 1);
  return {widget.width() - fromRight, person.Below(widget.height() + 1)};
}

// A desktop's event reaches its widget through the window, which may be blocked by a box in front
// of it. Events that were on their way when the box opened go straight to the widget.
void Touch(QWidget* widget, int action, Qt::MouseButton button, QPoint spot, bool isOnItsWay) {
  QWindow* window = isOnItsWay || !widget->isVisible() ? nullptr : widget->window()->windowHandle();
  if (action == TurnWheel) {
    QWheelEvent turn(spot, widget->mapToGlobal(spot), {}, {0, 10 * spot.x()}, {},
                     isOnItsWay ? Qt::ControlModifier : Qt::NoModifier, {}, false);
    QApplication::sendEvent(widget, &turn);
  } else if (action == AskForMenu) {
    QContextMenuEvent menu(QContextMenuEvent::Mouse, spot, widget->mapToGlobal(spot));
    QApplication::sendEvent(widget, &menu);
  } else if (window != nullptr) {
    QTest::mouseEvent(static_cast<QTest::MouseAction>(action), window, button, {},
                      widget->mapTo(widget->window(), spot));
  } else {
    QTest::mouseEvent(static_cast<QTest::MouseAction>(action), widget, button, {}, spot);
  }
}

// The press may close the window; then nobody receives the release.
void Strike(QKeyCombination keys) {
  const QWidget* front = WindowInFront();
  const QPointer<QWindow> window = front != nullptr ? front->windowHandle() : nullptr;
  const QString text = QKeySequence(keys.key()).toString().toLower();
  for (const bool isDown : {true, false})
    if (window != nullptr)
      QTest::simulateEvent(window.data(), isDown, keys.key(), keys.keyboardModifiers(),
                           text.size() == 1 ? text : QString(), false);
}

// By an input method or from the clipboard.
void WriteAnything(Chaos& chaos) {
  const QString text = ToText(chaos.person.ChooseName()) + QChar(0xD800);
  QApplication::clipboard()->setText(text);
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr || chaos.person.Once(2)) return Strike(Qt::CTRL | Qt::Key_V);
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(focus, &event);
}

// Most clicks go to a spot that is visible even when the next card covers the rest.
void UsePart(QWidget& part, Chaos& chaos) {
  constexpr Qt::Key pressing[] = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};
  ChaosPerson& person = chaos.person;
  if (part.isWindow() && person.Once(2)) return void(part.close());
  if (person.Once(4)) {
    part.setFocus();
    return Strike(person.OneOf(pressing));
  }
  const QPointer<QWidget> target(&part);
  const QPoint seen(std::min(8, part.width() / 2), part.height() / 2);
  const QPoint spot = person.Once(4) ? AnySpot(part, person) : seen;
  const bool isOnItsWay = person.Once(2);
  for (const int action : {QTest::MousePress, QTest::MouseRelease})
    if (target != nullptr) Touch(target, action, Qt::LeftButton, spot, isOnItsWay);
}

// Any of what a mouse can do, dragging included.
void FumbleAnywhere(Chaos& chaos) {
  constexpr Qt::MouseButton buttons[] = {Qt::LeftButton,  Qt::LeftButton,   Qt::LeftButton,
                                         Qt::RightButton, Qt::MiddleButton, Qt::BackButton};
  ChaosPerson& person = chaos.person;
  const QPointer<QWidget> part = AnyPart(chaos);
  const Qt::MouseButton button = person.OneOf(buttons);
  const bool isOnItsWay = person.Once(2);
  for (int count = 1 + person.Below(5); count > 0 && part != nullptr; --count) {
    const int action = person.Below(AskForMenu + 1);
    const QPoint spot = AnySpot(*part, person);
    chaos.Note(JoinText({"mouse action ", action, " at ", spot.x(), " ", spot.y()}));
    Touch(part, action, button, spot, isOnItsWay);
  }
}

// Letters and the like, keys that move about, and all the others.
void StrikeAnyKey(Chaos& chaos) {
  constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier,    Qt::NoModifier,
                                                Qt::ShiftModifier, Qt::ControlModifier,
                                                Qt::AltModifier,   Qt::MetaModifier};
  ChaosPerson& person = chaos.person;
  const int keys[] = {Qt::Key_Space + person.Below(0x40), Qt::Key_Escape + person.Below(0x18),
                      Qt::Key_Escape + person.Below(0x60)};
  const QKeyCombination stroke(person.OneOf(modifiers) | person.OneOf(modifiers),
                               static_cast<Qt::Key>(person.OneOf(keys)));
  chaos.Note(QKeySequence(stroke).toString().toStdString());
  Strike(stroke);
}

// As the desktop does: it gives windows another shape, hides and shows them and moves the focus.
void ChangeAnyWindow(Chaos& chaos) {
  constexpr void (QWidget::*changes[])() = {&QWidget::showMinimized, &QWidget::showMaximized,
                                            &QWidget::showNormal, &QWidget::hide, &QWidget::raise};
  ChaosPerson& person = chaos.person;
  QWidget* window = AnyWindow(person);
  if (window->windowType() == Qt::Popup || OpenBox() != nullptr) return;
  const auto any = [&person] { return person.Below(2000); };
  if (person.Once(3)) window->setGeometry(any() - 500, any() - 500, any(), any());
  (window->*person.OneOf(changes))();
  window->show();
  QApplication::setActiveWindow(person.Once(4) ? nullptr : window);
  AnyPart(chaos)->setFocus();
}

}  // namespace

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

void UseByHand(const std::string& name, Chaos& chaos) {
  if (OpenBox() != nullptr && chaos.person.Once(2)) return UsePart(*AnyPart(chaos), chaos);
  QWidget& table = WindowGame::Find("FrmMain");
  if (auto* command = table.findChild<QAction*>(QString::fromStdString(name))) {
    QApplication::setActiveWindow(&table);
    return command->shortcut().isEmpty() ? command->trigger() : Strike(command->shortcut()[0]);
  }
  for (QWidget* widget : QApplication::allWidgets())
    if (widget->objectName() == QString::fromStdString(name)) return UsePart(*widget, chaos);
}

void DoAnythingByHand(Chaos& chaos) {
  constexpr struct {
    const char* name;
    int weight;
    void (*act)(Chaos& chaos);
  } deeds[] = {{"choose a command", 200,
                [](Chaos& same) { UseByHand(same.person.OneOf(HarmlessCommands), same); }},
               {"use any part", 600, [](Chaos& same) { UsePart(*AnyPart(same), same); }},
               {"fumble anywhere", 300, FumbleAnywhere},
               {"strike any key", 300, StrikeAnyKey},
               {"write anything", 60, WriteAnything},
               {"change any window", 140, ChangeAnyWindow},
               {"end the session", 3, [](Chaos&) { WindowGame::EndSession(); }}};
  if (WindowsThere().isEmpty()) return;
  const auto deed = chaos.person.OneByWeight(deeds);
  chaos.Note(deed.name);
  deed.act(chaos);
}

}  // namespace Parlino
