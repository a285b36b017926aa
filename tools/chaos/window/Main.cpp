// parlino-chaos-window: plays hands at the real window while a person does anything at any time,
// and checks at every opportunity that the rules of the table and of its window hold.
//
//   parlino-chaos-window --hands N --seed S
#include <csignal>
#include <iostream>
#include <unistd.h>

#include <QApplication>
#include <QLoggingCategory>

#include "tools/CommandLine.h"
#include "tools/chaos/window/WindowChaos.h"

namespace {

const Parlino::WindowChaos* chaosInUse = nullptr;

// The program ends here, so it does not matter what the signal has interrupted.
void TellHang(int) {
  chaosInUse->Tell("no progress for a minute");
  _exit(1);
}

}  // namespace

int main(int count, char* arguments[]) {
  int hands = 0;
  std::uint64_t seed = 0;
  if (!Parlino::ParseCommandLine(
          count, arguments,
          {{"--hands", Parlino::TakeNumber(hands, 1)}, {"--seed", Parlino::TakeNumber(seed)}})) {
    std::cerr << "usage: parlino-chaos-window --hands N --seed S\n";
    return 2;
  }
  // Unless the caller chooses a platform, the windows are drawn into memory. Settings of the
  // desktop would make runs differ.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  // Warnings, such as that a spot is outside the window or that a plugin cannot raise one, are of
  // no interest here.
  QLoggingCategory::setFilterRules("*.warning=false");
  int onlyTheProgramsName = 1;
  const QApplication application(onlyTheProgramsName, arguments);
  Parlino::WindowChaos chaos(hands, seed);
  chaosInUse = &chaos;
  std::signal(SIGALRM, TellHang);
  return chaos.Play();
}
