// What a person does to the windows themselves without any purpose.
#include <algorithm>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenuBar>
#include <QPointer>
#include <QWheelEvent>

#include "table/window/painting/Design.h"
#include "tests/chaos/window/WindowDeeds.h"
#include "tests/window/WindowGame.h"

namespace Parlino {
namespace {

struct Prank {
  const char* name;
  int weight;
  void (*play)(Fingers& fingers, ChaosPerson& person);
};

template <class Items>
auto OneOf(const Items& items, ChaosPerson& person) {
  return items[person.NextBelow(static_cast<int>(std::size(items)))];
}

// Mostly keys that a window responds to; those that end the program or abandon the hand are rare.
void StrikeAnyKey(Fingers& fingers, ChaosPerson& person) {
  constexpr Qt::Key useful[] = {Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Enter,
                                Qt::Key_Space, Qt::Key_Escape,  Qt::Key_Up,        Qt::Key_Down,
                                Qt::Key_Left,  Qt::Key_Right,   Qt::Key_PageDown,  Qt::Key_Home,
                                Qt::Key_End,   Qt::Key_Delete,  Qt::Key_Backspace, Qt::Key_Alt,
                                Qt::Key_P,     Qt::Key_H,       Qt::Key_E,         Qt::Key_S,
                                Qt::Key_A,     Qt::Key_V,       Qt::Key_F1,        Qt::Key_F3,
                                Qt::Key_F4,    Qt::Key_F10,     Qt::Key_Menu,      Qt::Key_Insert};
  constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier,    Qt::NoModifier,
                                                Qt::ShiftModifier, Qt::ControlModifier,
                                                Qt::AltModifier,   Qt::MetaModifier};
  int key = OneOf(useful, person);
  if (person.Once(10)) key = person.NextBelow(0xFF) + 1;
  if (person.Once(20)) key = Qt::Key_Escape + person.NextBelow(0x60);
  const auto modifier = OneOf(modifiers, person) | OneOf(modifiers, person);
  fingers.session.AddToNote(JoinText({"key ", key, " with ", static_cast<int>(modifier.toInt())}));
  fingers.Strike(static_cast<Qt::Key>(key), modifier);
}

void WriteAnything(Fingers& fingers, ChaosPerson& person) {
  fingers.Write(ToText(person.ChooseName()) + QChar(0xD800));
}

void FumbleAnywhere(Fingers& fingers, ChaosPerson&) {
  QWidget* part = fingers.ChoosePart();
  if (part == nullptr) return;
  fingers.session.AddToNote(part->objectName().toStdString());
  fingers.Fumble(*part);
}

void DragAnywhere(Fingers& fingers, ChaosPerson&) {
  const QPointer<QWidget> from = fingers.ChoosePart();
  const QWidget* onto = fingers.ChoosePart();
  if (from == nullptr) return;
  const QPoint begin = from->rect().center();
  const QPoint end = from->mapFromGlobal(onto->mapToGlobal(onto->rect().center()));
  QTest::mousePress(from.data(), Qt::LeftButton, {}, begin);
  for (int step = 1; step <= 3 && from != nullptr; ++step)
    QTest::mouseMove(from.data(), begin + (end - begin) * step / 3);
  if (from != nullptr) QTest::mouseRelease(from.data(), Qt::LeftButton, {}, end);
}

void TurnWheel(Fingers& fingers, ChaosPerson& person) {
  QWidget* part = fingers.ChoosePart();
  if (part == nullptr) return;
  const QPointF spot = part->rect().center();
  const QPoint angle(0, person.NextBelow(1200) - 600);
  QWheelEvent turn(spot, part->mapToGlobal(spot), {}, angle, Qt::NoButton,
                   person.Once(2) ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(part, &turn);
}

void ReshapeWindow(Fingers& fingers, ChaosPerson& person) {
  QWidget* window = fingers.ChooseWindow();
  if (window == nullptr || window->windowType() == Qt::Popup) return;
  const QPoint any(person.NextBelow(2000), person.NextBelow(2000));
  switch (person.NextBelow(5)) {
    case 0:
      return window->showMinimized();
    case 1:
      return window->showMaximized();
    case 2:
      return window->showNormal();
    case 3:
      return window->move(any - QPoint(500, 500));
    default:
      return window->resize(any.x(), any.y());
  }
}

// As the desktop does when the workspace changes: it hides and shows windows and moves the focus.
void ShowWindowAgain(Fingers& fingers, ChaosPerson& person) {
  QWidget* window = fingers.ChooseWindow();
  if (window == nullptr || window->windowType() == Qt::Popup) return;
  if (person.Once(4)) return QApplication::setActiveWindow(nullptr);
  if (person.Once(4) && OpenBox() == nullptr) {
    window->hide();
    window->show();
  }
  window->raise();
  QApplication::setActiveWindow(window);
}

void MoveFocus(Fingers& fingers, ChaosPerson&) {
  if (QWidget* part = fingers.ChoosePart()) part->setFocus();
}

void OpenAnyMenu(Fingers& fingers, ChaosPerson& person) {
  auto& bar = *WindowGame::Find("FrmMain").findChild<QMenuBar*>();
  if (!bar.isVisible()) return;
  if (person.Once(2)) {
    constexpr Qt::Key letters[] = {Qt::Key_P, Qt::Key_H, Qt::Key_E, Qt::Key_S};
    fingers.Strike(OneOf(letters, person), Qt::AltModifier);
    for (int count = person.NextBelow(5); count > 0; --count) fingers.Strike(Qt::Key_Down);
    if (person.Once(30)) fingers.Strike(Qt::Key_Return);
    return;
  }
  fingers.ClickAt(bar, bar.actionGeometry(OneOf(bar.actions(), person)).center());
}

void AskForContextMenu(Fingers& fingers, ChaosPerson&) {
  QWidget* part = fingers.ChoosePart();
  if (part == nullptr) return;
  fingers.session.AddToNote(part->metaObject()->className());
  const QPoint spot = part->rect().center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, spot, part->mapToGlobal(spot));
  QApplication::sendEvent(part, &event);
}

void UseHelp(Fingers& fingers, ChaosPerson& person) {
  QWidget* help = FindAny("frmHelp");
  if (help == nullptr || !help->isVisible() || OpenBox() != nullptr) return;
  constexpr QKeyCombination strokes[] = {Qt::CTRL | Qt::Key_F,     Qt::Key_F3,
                                         Qt::SHIFT | Qt::Key_F3,   Qt::CTRL | Qt::Key_Equal,
                                         Qt::CTRL | Qt::Key_Minus, Qt::CTRL | Qt::Key_0,
                                         Qt::SHIFT | Qt::Key_End,  Qt::CTRL | Qt::Key_C};
  QApplication::setActiveWindow(help);
  const QKeyCombination stroke = OneOf(strokes, person);
  fingers.Strike(stroke.key(), stroke.keyboardModifiers());
  if (stroke.key() == Qt::Key_F) fingers.Write(person.Once(2) ? "bid" : "no such word");
}

void EndSession(Fingers& fingers, ChaosPerson&) {
  fingers.session.AddToNote("the end of the session");
  QEvent quit(QEvent::Quit);
  QApplication::sendEvent(qApp, &quit);
}

constexpr Prank Pranks[] = {
    {"strike any key", 300, StrikeAnyKey},
    {"write anything", 60, WriteAnything},
    {"fumble anywhere", 200, FumbleAnywhere},
    {"drag anywhere", 60, DragAnywhere},
    {"turn the wheel", 60, TurnWheel},
    {"reshape a window", 80, ReshapeWindow},
    {"show a window again", 60, ShowWindowAgain},
    {"move the focus", 60, MoveFocus},
    {"open any menu", 60, OpenAnyMenu},
    {"ask for a context menu", 60, AskForContextMenu},
    {"use the help", 100, UseHelp},
    {"end the session", 1, EndSession},
};

}  // namespace

void PlayPrank(Fingers& fingers) {
  ChaosPerson& person = fingers.session.person;
  int total = 0;
  for (const Prank& prank : Pranks) total += prank.weight;
  int place = person.NextBelow(total);
  const Prank* prank = Pranks;
  while (place >= prank->weight) place -= (prank++)->weight;
  fingers.session.Note(prank->name);
  prank->play(fingers, person);
  if (OpenBox() != nullptr && person.Once(250)) EndSession(fingers, person);
}

}  // namespace Parlino
