// parlino-demonstration: plays one hand in the real window with an automatic South, saves pictures
// of it and prints the cards played.
//
//   parlino-demonstration FOLDER
#include <iostream>

#include <QApplication>

#include "tools/demonstration/Demonstrator.h"

int main(int count, char* arguments[]) {
  if (count != 2) {
    std::cerr << "usage: parlino-demonstration FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = arguments[1];
  const QApplication application(count, arguments);
  std::filesystem::create_directories(folder);
  Parlino::QtPlatform platform(folder);
  return Parlino::Demonstrate(platform, folder);
}
