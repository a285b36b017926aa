// parlino-contact-sheet: saves all pictures of the game on one sheet for inspection.
//
//   parlino-contact-sheet SCALE FILE.png

#include <iostream>

#include <QGuiApplication>

#include "tools/contact-sheet/ContactSheet.h"

namespace {

constexpr double SmallestScale = 0.5, LargestScale = 8;

int Fail(const char* reason) {
  std::cerr << "parlino-contact-sheet: " << reason << '\n';
  return 1;
}

}  // namespace

int main(int count, char* arguments[]) {
  if (count != 3) {
    std::cerr << "usage: parlino-contact-sheet SCALE FILE.png\n";
    return 2;
  }
  const double scale = QString(arguments[1]).toDouble();
  if (!(scale >= SmallestScale && scale <= LargestScale))
    return Fail("the scale must be between 0.5 and 8");
  // Nothing is shown on a screen, so none is needed.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, arguments);
  if (!Parlino::DrawContactSheet(scale).save(QString::fromLocal8Bit(arguments[2])))
    return Fail("the sheet could not be saved");
  return 0;
}
