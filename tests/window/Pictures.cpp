#include "Pictures.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QTextEdit>

#include "WindowLook.h"

namespace Parlino {
namespace {

// Two drawings of a shape may differ by so much in a pixel.
constexpr int Rounding = 6;

int Difference(QRgb one, QRgb other) {
  return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                   std::abs(qBlue(one) - qBlue(other))});
}

// Letters are drawn differently by every version of a font library: their edges are softer, they
// are wider or narrower by a little. They are where they were and of the same colour if what is not
// ground begins and ends at nearly the same rows and columns and is as dark on average.
struct Letters {
  QRect box;
  double ink[3] = {0, 0, 0};

  Letters(const QImage& image, QRect area, QRgb ground) {
    constexpr int leastInk = 60;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        const QRgb pixel = image.pixel(x, y);
        if (Difference(pixel, ground) > leastInk) box |= QRect(x, y, 1, 1);
        ink[0] += qRed(pixel) - qRed(ground);
        ink[1] += qGreen(pixel) - qGreen(ground);
        ink[2] += qBlue(pixel) - qBlue(ground);
      }
    }
  }

  [[nodiscard]] double Amount() const { return std::hypot(ink[0], ink[1], ink[2]); }

  [[nodiscard]] bool AreLike(const Letters& other) const {
    const int drift = 2 + box.width() / 16;
    const int left = box.left() - other.box.left();
    const int right = box.right() - other.box.right();
    const double product = ink[0] * other.ink[0] + ink[1] * other.ink[1] + ink[2] * other.ink[2];
    const double amounts[] = {Amount(), other.Amount()};
    return std::abs(box.top() - other.box.top()) <= 1 &&
           std::abs(box.bottom() - other.box.bottom()) <= 1 &&
           (std::abs(left) <= 1 || std::abs(left + right) <= 2) && std::abs(left) <= drift &&
           std::abs(right) <= drift &&
           std::abs(amounts[0] - amounts[1]) <= 0.5 * std::max(amounts[0], amounts[1]) &&
           product >= 0.97 * amounts[0] * amounts[1];
  }
};

// The colour of most pixels.
QRgb GroundOf(const QImage& image, QRect area) {
  QHash<QRgb, int> counts;
  QRgb ground = 0;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      if (const QRgb pixel = image.pixel(x, y); ++counts[pixel] > counts[ground]) ground = pixel;
  return ground;
}

// Some labels are as wide as their letters.
QMargins MarginOf(const QWidget& widget) {
  const bool fitsLetters =
      widget.objectName().startsWith("LblName(") || widget.objectName() == "LblTrumps";
  return fitsLetters ? QMargins(4, 0, 4, 0) : QMargins();
}

// The places with letters. Of a frame, that is its title.
std::vector<QRect> PlacesOfLetters(const QWidget& whole) {
  constexpr int heightOfTitle = 20;
  std::vector<QRect> places;
  for (const QWidget* widget : whole.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&whole)) continue;
    const QRect place(widget->mapTo(&whole, QPoint()), widget->size());
    if (!widget->property("text").toString().isEmpty() ||
        qobject_cast<const QAbstractItemView*>(widget) != nullptr ||
        qobject_cast<const QTextEdit*>(widget) != nullptr)
      places.push_back(place + MarginOf(*widget));
    else if (!widget->property("title").toString().isEmpty())
      places.push_back(place & QRect(place.topLeft(), QSize(place.width(), heightOfTitle)));
  }
  return places;
}

// Lines of text that differ, one after the other: rows that differ with at most two between them.
std::vector<QRect> RowsThatDiffer(const QImage& actual, const QImage& expected, QRect place) {
  std::vector<QRect> rows;
  for (int y = place.top(); y <= place.bottom(); ++y) {
    const auto bytes = static_cast<std::size_t>(actual.bytesPerLine());
    if (std::memcmp(actual.constScanLine(y), expected.constScanLine(y), bytes) == 0) continue;
    for (int x = place.left(); x <= place.right(); ++x) {
      if (Difference(actual.pixel(x, y), expected.pixel(x, y)) <= Rounding) continue;
      const QRect pixel(x, y, 1, 1);
      if (rows.empty() || y > rows.back().bottom() + 3)
        rows.push_back(pixel);
      else
        rows.back() |= pixel;
    }
  }
  return rows;
}

// What is seen to differ, one place a line.
std::string Differences(const QImage& actual, QImage expected, const std::vector<QRect>& places) {
  std::string text;
  const auto tell = [&text](QRect area) {
    text += QString("at (%1,%2), %3 x %4\n")
                .arg(area.x())
                .arg(area.y())
                .arg(area.width())
                .arg(area.height())
                .toStdString();
  };
  if (actual.size() != expected.size()) return "it has another size";
  QPainter painter(&expected);
  for (const QRect& place : places) {
    const QRect inside = place & actual.rect();
    for (const QRect& row : RowsThatDiffer(actual, expected, inside)) {
      const QRect area = row.adjusted(-2, -2, 2, 2) & inside;
      const QRgb grounds[] = {GroundOf(actual, area), GroundOf(expected, area)};
      if (Difference(grounds[0], grounds[1]) > Rounding ||
          !Letters(actual, area, grounds[0]).AreLike(Letters(expected, area, grounds[1])))
        tell(area);
      painter.drawImage(row.topLeft(), actual, row);
    }
  }
  painter.end();
  for (const QRect& row : RowsThatDiffer(actual, expected, actual.rect())) tell(row);
  return text;
}

QString PathOf(const QString& name) {
  return QString(PARLINO_PICTURE_FOLDER "/%1.png").arg(name);
}

}  // namespace

void ExpectAsKept(QWidget& widget, const QString& name) {
  if (picturesAreAccepted) ShotOf(widget).save(PathOf(name));
  const QImage expected = QImage(PathOf(name)).convertToFormat(QImage::Format_RGB32);
  const std::string differences = Differences(ShotOf(widget), expected, PlacesOfLetters(widget));
  if (differences.empty()) return;
  ShotOf(widget).save(name + ".actual.png");
  ADD_FAILURE() << "Not as in " << PathOf(name).toStdString() << ":\n"
                << differences << "What is drawn now is in " << name.toStdString()
                << ".actual.png.";
}

}  // namespace Parlino
