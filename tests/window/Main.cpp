// parlino-window-tests: the tests of the window.
//
//   parlino-window-tests --accept     keeps what the scenes and pictures show now
#include <csignal>
#include <gtest/gtest.h>
#include <iostream>
#include <string_view>
#include <sys/prctl.h>

#include <QApplication>
#include <QProcess>

#include "Pictures.h"

namespace {

// A session bus of the tests' own, on which every name is free. Returns whether there is one.
bool BeginBus(QProcess& bus) {
  bus.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
  bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  while (!bus.canReadLine())
    if (!bus.waitForReadyRead(-1)) return false;
  return qputenv("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());
}

}  // namespace

// Unless the caller chooses a platform, the windows are drawn into memory and no display is needed.
int main(int count, char* arguments[]) {
  testing::InitGoogleTest(&count, arguments);
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  if (count == 2 && std::string_view(arguments[1]) == "--accept") {
    Parlino::picturesAreAccepted = true;
    if (testing::GTEST_FLAG(filter) == "*") testing::GTEST_FLAG(filter) = "*Scenes*:Picture*";
  }
  QProcess bus;
  if (!BeginBus(bus)) {
    std::cerr << "parlino-window-tests: dbus-daemon does not start\n";
    return 1;
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, arguments);
  QApplication::setCursorFlashTime(0);  // pictures would have a caret or not
  const int status = RUN_ALL_TESTS();
  bus.kill();
  bus.waitForFinished();
  return status;
}
