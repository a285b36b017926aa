// The demonstration with a clock that runs faster.
#include <QApplication>

#include "tests/window/FastPlatform.h"
#include "tools/demonstration/Demonstrator.h"

int main(int count, char* arguments[]) {
  using Parlino::FastPlatform;
  const QApplication application(count, arguments);
  const std::filesystem::path folder = arguments[1];
  std::filesystem::create_directories(folder);
  FastPlatform platform(folder);
  constexpr int thinkingMs = Parlino::ThinkingMs / static_cast<int>(FastPlatform::TimesAsFast);
  return Parlino::Demonstrate(platform, folder, thinkingMs);
}
