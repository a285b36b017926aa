#include "tools/chaos/window/Pranks.h"

#include <algorithm>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenuBar>
#include <QWheelEvent>

#include "table/window/painting/Design.h"
#include "tests/window/WindowGame.h"
#include "tools/chaos/window/AnyWidget.h"

namespace Parlino {

void Pranks::Play() {
  static constexpr struct {
    const char* name;
    int weight;
    void (Pranks::*play)();
  } all[] = {
      {"strike any key", 300, &Pranks::StrikeAnyKey},
      {"write anything", 60, &Pranks::WriteAnything},
      {"fumble anywhere", 200, &Pranks::FumbleAnywhere},
      {"drag anywhere", 60, &Pranks::DragAnywhere},
      {"turn the wheel", 60, &Pranks::TurnWheel},
      {"reshape a window", 80, &Pranks::ReshapeWindow},
      {"show a window again", 60, &Pranks::ShowWindowAgain},
      {"move the focus", 60, &Pranks::MoveFocus},
      {"open any menu", 60, &Pranks::OpenAnyMenu},
      {"ask for a context menu", 60, &Pranks::AskForContextMenu},
      {"use the help", 100, &Pranks::UseHelp},
      {"end the session", 1, &Pranks::EndSession},
  };
  int total = 0;
  for (const auto& prank : all) total += prank.weight;
  int place = session_.person.NextBelow(total);
  const auto* prank = all;
  while (place >= prank->weight) place -= (prank++)->weight;
  session_.Note(prank->name);
  (this->*prank->play)();
  if (OpenBox() != nullptr && session_.person.Once(250)) EndSession();
}

// Mostly keys that a window responds to; those that end the program or abandon the hand are rare.
void Pranks::StrikeAnyKey() {
  ChaosPerson& person = session_.person;
  constexpr Qt::Key useful[] = {Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return,    Qt::Key_Enter,
                                Qt::Key_Space, Qt::Key_Escape,  Qt::Key_Up,        Qt::Key_Down,
                                Qt::Key_Left,  Qt::Key_Right,   Qt::Key_PageDown,  Qt::Key_Home,
                                Qt::Key_End,   Qt::Key_Delete,  Qt::Key_Backspace, Qt::Key_Alt,
                                Qt::Key_P,     Qt::Key_H,       Qt::Key_E,         Qt::Key_S,
                                Qt::Key_A,     Qt::Key_V,       Qt::Key_F1,        Qt::Key_F3,
                                Qt::Key_F4,    Qt::Key_F10,     Qt::Key_Menu};
  constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier,    Qt::NoModifier,
                                                Qt::ShiftModifier, Qt::ControlModifier,
                                                Qt::AltModifier,   Qt::MetaModifier};
  int key = useful[person.NextBelow(static_cast<int>(std::size(useful)))];
  if (person.Once(10)) key = person.NextBelow(0xFF) + 1;
  if (person.Once(20)) key = Qt::Key_Escape + person.NextBelow(0x60);
  const auto modifier = modifiers[person.NextBelow(6)] | modifiers[person.NextBelow(6)];
  session_.AddToNote("key " + std::to_string(key) + " with " + std::to_string(modifier.toInt()));
  fingers_.Strike(static_cast<Qt::Key>(key), modifier);
}

void Pranks::WriteAnything() {
  fingers_.Write(ToText(session_.person.ChooseName()) + QChar(0xD800));
}

void Pranks::FumbleAnywhere() {
  QWidget* part = ChoosePart(session_.person);
  if (part == nullptr) return;
  session_.AddToNote(part->objectName().toStdString());
  fingers_.Fumble(*part);
}

void Pranks::DragAnywhere() {
  QWidget* ends[] = {ChoosePart(session_.person), ChoosePart(session_.person)};
  if (ends[0] == nullptr) return;
  const auto spotOf = [ends](const QWidget& widget) {
    return ends[0]->mapFromGlobal(widget.mapToGlobal(widget.rect().center()));
  };
  const QPoint from = spotOf(*ends[0]);
  const QPoint to = spotOf(*ends[1]);
  const QPointer<QWidget> target(ends[0]);
  QTest::mousePress(target.data(), Qt::LeftButton, {}, from);
  for (int step = 1; step <= 3 && target != nullptr; ++step)
    QTest::mouseMove(target.data(), from + (to - from) * step / 3);
  if (target != nullptr) QTest::mouseRelease(target.data(), Qt::LeftButton, {}, to);
}

void Pranks::TurnWheel() {
  QWidget* part = ChoosePart(session_.person);
  if (part == nullptr) return;
  const QPointF spot = part->rect().center();
  const Qt::KeyboardModifiers modifiers =
      session_.person.Once(2) ? Qt::ControlModifier : Qt::NoModifier;
  const QPoint angle(0, session_.person.NextBelow(1200) - 600);
  QWheelEvent turn(spot, part->mapToGlobal(spot), {}, angle, Qt::NoButton, modifiers,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(part, &turn);
}

void Pranks::ReshapeWindow() {
  ChaosPerson& person = session_.person;
  QWidget* window = ChooseWindow(person);
  if (window == nullptr || window->windowType() == Qt::Popup) return;
  switch (person.NextBelow(5)) {
    case 0:
      return window->showMinimized();
    case 1:
      return window->showMaximized();
    case 2:
      return window->showNormal();
    case 3:
      return window->move(person.NextBelow(2000) - 500, person.NextBelow(2000) - 500);
    default:
      return window->resize(person.NextBelow(2000), person.NextBelow(2000));
  }
}

// As the desktop does when the workspace changes: it hides and shows windows and moves the focus.
void Pranks::ShowWindowAgain() {
  QWidget* window = ChooseWindow(session_.person);
  if (window == nullptr || window->windowType() == Qt::Popup) return;
  if (session_.person.Once(4)) return QApplication::setActiveWindow(nullptr);
  if (session_.person.Once(4) && OpenBox() == nullptr) {
    window->hide();
    window->show();
  }
  window->raise();
  QApplication::setActiveWindow(window);
}

void Pranks::MoveFocus() {
  if (QWidget* part = ChoosePart(session_.person)) part->setFocus();
}

void Pranks::OpenAnyMenu() {
  ChaosPerson& person = session_.person;
  auto& bar = *WindowGame::Find("FrmMain").findChild<QMenuBar*>();
  if (!bar.isVisible()) return;
  if (person.Once(2)) {
    constexpr Qt::Key letters[] = {Qt::Key_P, Qt::Key_H, Qt::Key_E, Qt::Key_S};
    fingers_.Strike(letters[person.NextBelow(4)], Qt::AltModifier);
    for (int count = person.NextBelow(5); count > 0; --count) fingers_.Strike(Qt::Key_Down);
    if (person.Once(30)) fingers_.Strike(Qt::Key_Return);
    return;
  }
  QAction* entry = bar.actions().at(person.NextBelow(static_cast<int>(bar.actions().size())));
  fingers_.ClickAt(bar, bar.actionGeometry(entry).center());
}

void Pranks::AskForContextMenu() {
  QWidget* part = ChoosePart(session_.person);
  if (part == nullptr) return;
  session_.AddToNote(part->metaObject()->className());
  const QPoint spot = part->rect().center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, spot, part->mapToGlobal(spot));
  QApplication::sendEvent(part, &event);
}

void Pranks::UseHelp() {
  QWidget* help = FindAny("frmHelp");
  if (help == nullptr || !help->isVisible() || OpenBox() != nullptr) return;
  static constexpr struct {
    Qt::Key key;
    Qt::KeyboardModifier modifier;
  } strokes[] = {{Qt::Key_F, Qt::ControlModifier},     {Qt::Key_F3, Qt::NoModifier},
                 {Qt::Key_F3, Qt::ShiftModifier},      {Qt::Key_Equal, Qt::ControlModifier},
                 {Qt::Key_Minus, Qt::ControlModifier}, {Qt::Key_0, Qt::ControlModifier},
                 {Qt::Key_End, Qt::ShiftModifier},     {Qt::Key_C, Qt::ControlModifier}};
  QApplication::setActiveWindow(help);
  const auto& stroke = strokes[session_.person.NextBelow(static_cast<int>(std::size(strokes)))];
  fingers_.Strike(stroke.key, stroke.modifier);
  if (stroke.key == Qt::Key_F) fingers_.Write(session_.person.Once(2) ? "bid" : "no such word");
}

void Pranks::EndSession() {
  session_.AddToNote("the end of the session");
  QEvent quit(QEvent::Quit);
  QApplication::sendEvent(qApp, &quit);
}

}  // namespace Parlino
