#include "table/window/painting/Pictures.h"

#include <map>
#include <tuple>

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>

#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr QSize CardSize(71, 96);
constexpr QSize SuitSize(48, 48);
constexpr QSize SmallSize(32, 32);
constexpr Integer PictureRedBackSideways = 59;

std::map<std::tuple<QString, int, qreal>, QPixmap> drawnPictures;

QPixmap DrawPicture(const QString& name, QSize size, qreal ratio) {
  QSvgRenderer drawing(":/" + name + ".svg");
  QPixmap pixels(qCeil(size.width() * ratio), qCeil(size.height() * ratio));
  pixels.fill(Qt::transparent);
  QPainter painter(&pixels);
  drawing.render(&painter, QRectF(QPointF(0, 0), QSizeF(size) * ratio));
  painter.end();
  pixels.setDevicePixelRatio(ratio);
  return pixels;
}

QPixmap Picture(const QString& name, QSize size, qreal ratio) {
  // Pixmaps must be destroyed before the application is.
  if (drawnPictures.empty()) qAddPostRoutine([] { drawnPictures.clear(); });
  QPixmap& pixels = drawnPictures[{name, size.width(), ratio}];
  if (pixels.isNull()) pixels = DrawPicture(name, size, ratio);
  return pixels;
}

}  // namespace

QSize PictureSize(Integer picture) {
  if (picture >= PictureHearts) return SuitSize;
  if (picture == PictureBackSideways || picture == PictureRedBackSideways)
    return CardSize.transposed();
  if (picture >= PicturePointerPlay && picture <= PicturePointerWait) return SmallSize;
  return CardSize;
}

QPixmap CardPicture(Integer picture, qreal ratio) {
  return Picture(QString::number(picture), PictureSize(picture), ratio);
}

QPixmap DimmedPicture(Integer picture, qreal ratio) {
  constexpr QColor dark(0, 0, 40, 120);
  static std::map<std::pair<Integer, qreal>, QPixmap> drawn;
  if (drawn.empty()) qAddPostRoutine([] { drawn.clear(); });
  QPixmap& pixels = drawn[{picture, ratio}];
  if (!pixels.isNull()) return pixels;
  pixels = CardPicture(picture, ratio);
  QPainter painter(&pixels);
  painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  painter.fillRect(QRect({}, PictureSize(picture)), dark);
  return pixels;
}

QPixmap MessagePicture(int picture, qreal ratio) {
  return Picture(QString("message%1").arg(picture), SmallSize, ratio);
}

QPixmap SmallBack(qreal ratio) {
  return Picture("small-back", SmallSize, ratio);
}

QPixmap IconPicture(int size) {
  return Picture("icon", {size, size}, 1);
}

void GiveWindowsIcon() {
  if (!QApplication::windowIcon().isNull()) return;
  QIcon icon;
  for (const int size : {16, 32, 48, 64, 128}) icon.addPixmap(IconPicture(size));
  QApplication::setWindowIcon(icon);
}

}  // namespace Parlino
