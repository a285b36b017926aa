#include <gtest/gtest.h>

#include <QApplication>

// Unless the caller chooses a platform, the windows are drawn into memory and no display is needed.
int main(int count, char* arguments[]) {
  testing::InitGoogleTest(&count, arguments);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, arguments);
  return RUN_ALL_TESTS();
}
