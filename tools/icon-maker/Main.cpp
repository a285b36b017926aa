// parlino-icon-maker: draws the program's icon in one of the sizes that desktops look for.
//
//   parlino-icon-maker ICON.svg SIZE FILE.png

#include <iostream>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int SmallestSize = 8, LargestSize = 1024;

QImage DrawIcon(QSvgRenderer& drawing, int size) {
  QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  drawing.render(&painter);
  return icon;
}

}  // namespace

int main(int count, char* arguments[]) {
  const int size = count == 4 ? QString(arguments[2]).toInt() : 0;
  if (size < SmallestSize || size > LargestSize) {
    std::cerr << "usage: parlino-icon-maker ICON.svg SIZE FILE.png\n";
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(arguments[1]));
  if (drawing.isValid() && DrawIcon(drawing, size).save(QString::fromLocal8Bit(arguments[3])))
    return 0;
  std::cerr << "parlino-icon-maker: " << arguments[3] << " could not be drawn\n";
  return 1;
}
