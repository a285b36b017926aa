// parlino-chaos-window: plays hands at the real window while a person does anything at any time,
// and checks at every opportunity that the rules of the table and of its window hold.
//
//   parlino-chaos-window --hands N --seed S
#include <csignal>
#include <unistd.h>

#include <QApplication>
#include <QLoggingCategory>

#include "tests/chaos/window/WindowChaos.h"

namespace {

const Parlino::WindowChaos* chaosInUse = nullptr;

// The program ends here, so it does not matter what the signal has interrupted.
void TellHang(int) {
  chaosInUse->Tell("no progress for five minutes");
  _exit(1);
}

}  // namespace

int main(int count, char* arguments[]) {
  const Parlino::ChaosOptions options(count, arguments, "parlino-chaos-window");
  // Unless the caller chooses a platform, the windows are drawn into memory. Settings of the
  // desktop would make runs differ.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  // Warnings, such as that a spot is outside the window or that a plugin cannot raise one, are of
  // no interest here.
  QLoggingCategory::setFilterRules("*.warning=false");
  int onlyTheProgramsName = 1;
  const QApplication application(onlyTheProgramsName, arguments);
  Parlino::WindowChaos chaos(options);
  chaosInUse = &chaos;
  std::signal(SIGALRM, TellHang);
  return chaos.Play();
}
