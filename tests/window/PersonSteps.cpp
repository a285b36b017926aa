// What a person does with keys and mouse, and what the desktop does.
#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QHelpEvent>
#include <QProxyStyle>
#include <QTest>
#include <QThread>
#include <QWheelEvent>
#include <QWindow>

#include "PersonAtWindow.h"
#include "SceneSteps.h"

namespace Parlino {
namespace {

// Opens tips at once, and puts icons on the buttons of boxes, as some desktops do.
class OddStyle : public QProxyStyle {
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    if (hint == SH_ToolTip_WakeUpDelay || hint == SH_ToolTip_FallAsleepDelay) return 0;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 1;
    return QProxyStyle::styleHint(hint, option, widget, answer);
  }
};

QWindow& WindowWithKeys() {
  const QWidget* modal = QApplication::activeModalWidget();
  const QWidget* active = modal != nullptr ? modal : QApplication::activeWindow();
  return *(active != nullptr ? *active : WindowGame::Find("FrmMain")).windowHandle();
}

void SendKey(const QString& name, bool isPress, bool isRepeat = false) {
  const QKeyCombination keys = QKeySequence::fromString(name)[0];
  const bool isLetter = keys.key() < Qt::Key_Escape;
  const QString text = isLetter ? QString(QChar(keys.key())).toLower() : QString();
  QThread::msleep(2);  // a key let go and pressed in the same millisecond counts as held down
  QTest::simulateEvent(&WindowWithKeys(), isPress, keys.key(), keys.keyboardModifiers(), text,
                       isRepeat);
}

void PressKeys(Words& words) {
  while (!words.IsEmpty()) {
    const QString key = words.Next();
    SendKey(key, true);
    SendKey(key, false);
  }
}

// As some desktops repeat a key: it is let go and pressed again, or another one is, in the same
// moment.
void Stutter(Words& words) {
  for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
    QKeyEvent event(type, QKeySequence::fromString(words.Next())[0].key(), Qt::NoModifier);
    event.setTimestamp(1000);
    QApplication::sendEvent(&WindowWithKeys(), &event);
  }
}

void TypeText(Words& words) {
  for (const QChar letter : QString::fromStdString(words.Rest()))
    for (const bool isPress : {true, false})
      QTest::simulateEvent(&WindowWithKeys(), isPress, 0, {}, letter, false);
}

// A spot on a part; unless it is given, one that the next card does not cover.
QPoint SpotOn(const QWidget& part, Words& words) {
  const bool isCard = part.objectName().startsWith("Cds(");
  return words.Point(isCard ? QPoint(8, 48) : part.rect().center());
}

void Point(Words& words) {
  const QWidget& part = words.Part();
  QCursor::setPos(part.mapToGlobal(SpotOn(part, words)));
}

// The pointer goes there first.
void UseMouse(Words& words, QTest::MouseAction action, Qt::MouseButton button = Qt::LeftButton) {
  const QWidget& part = words.Part();
  const QPoint spot = SpotOn(part, words);
  if (action != QTest::MouseRelease) QCursor::setPos(part.mapToGlobal(spot));
  QTest::mouseEvent(action, part.window()->windowHandle(), button, {},
                    part.mapTo(part.window(), spot));
}

// As Qt does when the mouse has rested for a moment.
void Rest(Words&) {
  QWidget* widget = QApplication::widgetAt(QCursor::pos());
  QHelpEvent rest(QEvent::ToolTip, widget->mapFromGlobal(QCursor::pos()), QCursor::pos());
  QApplication::sendEvent(widget, &rest);
}

void TurnWheel(Words& words) {
  const QPoint angle(0, words.Number());
  const Qt::KeyboardModifiers keys = words.IsEmpty() ? Qt::NoModifier : Qt::ControlModifier;
  QWidget* widget = QApplication::widgetAt(QCursor::pos());
  QWheelEvent turn(widget->mapFromGlobal(QCursor::pos()), QCursor::pos(), {}, angle, {}, keys,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(widget, &turn);
}

// Another program's window comes in front of the table, or goes again.
void Cover(bool isCovered) {
  QWindow* window = WindowGame::Find("FrmMain").windowHandle();
  const QPointF spot = window->mapFromGlobal(QCursor::pos());
  QEvent leave(QEvent::Leave);
  QEnterEvent enter(spot, spot, QCursor::pos());
  QApplication::sendEvent(window, isCovered ? &leave : static_cast<QEvent*>(&enter));
}

void Deactivate(Words& words) {
  words.player.keysReturn = false;
  QApplication::setActiveWindow(nullptr);
}

void Resize(Words& words) {
  QWidget& window = words.Part();
  const QPoint corner = words.Point();
  window.resize(corner.x(), corner.y());
}

void Darken(Words&) {
  QApplication::setPalette(QPalette(QColor(40, 44, 48), QColor(35, 38, 41)));
  QApplication::setFont(QFont("DejaVu Sans", 24));
}

void UseTool(Words& words, const QString& action) {
  VoiceOf(words.Part().objectName())->actionInterface()->doAction(action);
}

}  // namespace

const Steps StepsOfPerson = {
    {"press", PressKeys},
    {"hold", [](Words& words) { SendKey(words.Next(), true); }},
    {"repeat", [](Words& words) { SendKey(words.Next(), true, true); }},
    {"lift", [](Words& words) { SendKey(words.Next(), false); }},
    {"stutter", Stutter},
    {"type", TypeText},
    {"point", Point},
    {"away", [](Words&) { QCursor::setPos(0, 0); }},
    {"rest", Rest},
    {"click", [](Words& words) { UseMouse(words, QTest::MouseClick); }},
    {"right-click", [](Words& words) { UseMouse(words, QTest::MouseClick, Qt::RightButton); }},
    {"push", [](Words& words) { UseMouse(words, QTest::MousePress); }},
    {"release", [](Words& words) { UseMouse(words, QTest::MouseRelease); }},
    {"wheel", TurnWheel},
    {"choose",
     [](Words& words) {
       WindowGame::Find("FrmMain").findChild<QAction*>(words.Next())->trigger();
     }},
    {"tool-press", [](Words& words) { UseTool(words, QAccessibleActionInterface::pressAction()); }},
    {"tool-focus",
     [](Words& words) { UseTool(words, QAccessibleActionInterface::setFocusAction()); }},
    {"focus", [](Words& words) { words.Part().setFocus(); }},
    {"cover", [](Words&) { Cover(true); }},
    {"uncover", [](Words&) { Cover(false); }},
    {"resize", Resize},
    {"close", [](Words& words) { words.Part().close(); }},
    {"activate", [](Words& words) { QApplication::setActiveWindow(&words.Part()); }},
    {"deactivate", Deactivate},
    {"dark", Darken},
    {"odd", [](Words&) { QApplication::setStyle(new OddStyle); }},
    {"quit", [](Words&) { WindowGame::EndSession(); }},
};

}  // namespace Parlino
