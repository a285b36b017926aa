#include <chrono>
#include <csignal>
#include <random>

#include <QApplication>

#include "engine/Generator.h"
#include "game/Game.h"
#include "table/window/QtPlatform.h"

namespace {

// The clock is mixed in too, in case random_device is only a generator with a fixed seed.
std::uint64_t FreshSeed() {
  std::random_device chance;
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  constexpr int halfOfWord = 32;
  return (std::uint64_t{chance()} << halfOfWord | chance()) ^ static_cast<std::uint64_t>(now);
}

}  // namespace

int main(int, char* arguments[]) {
  std::signal(SIGXFSZ, SIG_IGN);  // let a file that may not grow fail to be saved instead
  int onlyTheProgramsName = 1;
  const QApplication application(onlyTheProgramsName, arguments);
  QGuiApplication::setDesktopFileName("org.parlino.Parlino");
  Parlino::QtPlatform platform(QApplication::applicationDirPath().toStdString());
  Parlino::SetUpGame(platform);
  Parlino::DealGenerator.Seed(FreshSeed());
  return Parlino::RunGame();
}
