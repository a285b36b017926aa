#include "WindowGame.h"

#include <cmath>
#include <stdexcept>

#include <QApplication>
#include <QTest>

#include "engine/Generator.h"
#include "engine/state/GameState.h"
#include "headless/FirstFiles.h"
#include "table/TableEvents.h"

namespace Parlino {

void QuickPlatform::WaitForQt(std::uint32_t atMostMs) {
  person();
  if (atMostMs != Forever) ticks += atMostMs;
  QtPlatform::WaitForQt(0);
  if (cardsGlide) Motion().Allow(*cardsGlide);
}

double QuickPlatform::ClockSeconds() {
  constexpr double secondsInDay = 86'400;
  constexpr double msInSecond = 1000;
  return std::fmod(clockAtStart + ticks / msInSecond, secondsInDay);
}

void QuickPlatform::StartSound(std::string_view fileName) {
  onSound(std::string(fileName));
  QtPlatform::StartSound(fileName);
}

WindowGame::WindowGame(std::uint64_t seed) : platform(folder.path().toStdString()) {
  SetUpGame(platform);
  QCursor::setPos(0, 0);           // otherwise it might rest on a card, where the last test left it
  platform.Motion().Allow(false);  // a test about moving cards turns it on
  DealGenerator.Seed(seed);
  WriteFirstRecords();
}

void WindowGame::Load() {
  Events.Form_Load();
  Turn();
  QApplication::setActiveWindow(&Find("FrmMain"));
}

int WindowGame::Run(std::function<void()> person) {
  platform.person = std::move(person);
  try {
    return RunGame();
  } catch (const SeenEnough&) {
    return -1;
  }
}

QWidget& WindowGame::Find(const QString& name) {
  for (QWidget* widget : QApplication::allWidgets())
    if (widget->objectName() == name) return *widget;
  throw std::out_of_range("no widget is called " + name.toStdString());
}

void WindowGame::EndSession() {
  QEvent quit(QEvent::Quit);
  QApplication::sendEvent(qApp, &quit);
}

QWidget& WindowGame::FindMember(const char* array, int index) {
  return Find(QString("%1(%2)").arg(array).arg(index));
}

void Click(QWidget& widget) {
  QTest::mouseClick(&widget, Qt::LeftButton);
}

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* window = QApplication::activeModalWidget();
  if (window == nullptr) window = &WindowGame::Find("FrmMain");
  QApplication::setActiveWindow(window);
  QWidget* focus = window->focusWidget();
  QTest::keyClick(focus != nullptr ? focus : window, key, modifiers);
}

QDialog* OpenBox() {
  return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

}  // namespace Parlino
