// parlino-measure-ink: measures how heavy the suits look and how well the indices stand out.
//
//   parlino-measure-ink
//
// Prints a table of what the window draws at scale 1; fails if one suit is heavier than another or
// an index is too pale.

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <limits>
#include <map>

#include <QGuiApplication>
#include <QImage>

#include "table/TableView.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Pictures.h"

namespace Parlino {
namespace {

constexpr double LargestDifference = .08, LeastContrast = 5;
constexpr std::size_t Suits = 4;
constexpr int CardsOfSuit = 13, FirstColumn = 22, Column = 10;
constexpr std::array SuitNames{"diamonds", "clubs", "hearts", "spades"};
constexpr std::array<Integer, Suits> Tiles{62, 61, 60, 63};

struct Mark {
  const char* name;
  int rank;  // of the card that shows it, or 0 for the tile of the trumps
  QRect box;
};
constexpr std::array Marks{
    Mark{"index pip", 2, {4, 27, 18, 17}}, Mark{"pip of a two", 2, {28, 3, 21, 30}},
    Mark{"pip of a four", 4, {27, 1, 15, 24}}, Mark{"pip of a ten", 10, {27, 1, 14, 22}},
    Mark{"trump tile", 0, {4, 2, 40, 44}}};
constexpr QRect IndexBox(2, 5, 22, 38);

Integer CardOf(std::size_t suit, int rank) {
  return static_cast<Integer>(static_cast<int>(suit) * CardsOfSuit + rank - 1);
}

QImage Cut(Integer picture, const QRect& box) {
  return CardPicture(picture, 1).toImage().copy(box).convertToFormat(QImage::Format_RGB32);
}

double Linear(int channel) {
  const double part = channel / 255.0;
  return part <= .04045 ? part / 12.92 : std::pow((part + .055) / 1.055, 2.4);
}

double Luminance(QRgb colour) {
  return .2126 * Linear(qRed(colour)) + .7152 * Linear(qGreen(colour)) +
         .0722 * Linear(qBlue(colour));
}

double Contrast(QRgb ink, QRgb ground) {
  return (Luminance(ground) + .05) / (Luminance(ink) + .05);
}

// The ground first, then the ink: the two colours that most pixels have.
std::array<QRgb, 2> CommonColours(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  std::array<QRgb, 2> common{};
  for (QRgb& colour : common) {
    const auto most =
        std::ranges::max_element(counts, {}, [](const auto& it) { return it.second; });
    colour = most->first;
    counts.erase(most);
  }
  const bool darkFirst = Luminance(common[0]) < Luminance(common[1]);
  return darkFirst ? std::array{common[1], common[0]} : common;
}

// Pixels of full ink; a pixel that is covered in part counts for that part.
double Ink(const QImage& image) {
  const auto [ground, ink] = CommonColours(image);
  const double whole = qGreen(ground) - qGreen(ink);
  double sum = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      sum += std::clamp((qGreen(ground) - qGreen(image.pixel(x, y))) / whole, 0.0, 1.0);
  return sum;
}

void PrintHeading() {
  std::cout << std::fixed << std::left << std::setw(FirstColumn) << "" << std::right;
  for (const char* suit : SuitNames) std::cout << std::setw(Column) << suit;
  std::cout << '\n';
}

// Prints one line of the table.
void Print(const char* name, const std::array<double, Suits>& values, int decimals) {
  std::cout << std::left << std::setw(FirstColumn) << name << std::right;
  for (const double value : values)
    std::cout << std::setw(Column) << std::setprecision(decimals) << value;
}

bool WeighTheSame(const Mark& mark) {
  std::array<double, Suits> inks{};
  for (std::size_t suit = 0; suit < Suits; ++suit)
    inks[suit] = Ink(Cut(mark.rank == 0 ? Tiles[suit] : CardOf(suit, mark.rank), mark.box));
  const auto [least, most] = std::ranges::minmax(inks);
  Print(mark.name, inks, 1);
  std::cout << "  apart " << 100 * (most / least - 1) << " %\n";
  return most / least - 1 <= LargestDifference;
}

bool StandOut() {
  std::array<double, Suits> contrasts{};
  for (std::size_t suit = 0; suit < Suits; ++suit) {
    contrasts[suit] = std::numeric_limits<double>::max();
    for (int rank = 2; rank <= CardsOfSuit + 1; ++rank) {
      const auto [ground, ink] = CommonColours(Cut(CardOf(suit, rank), IndexBox));
      contrasts[suit] = std::min(contrasts[suit], Contrast(ink, ground));
    }
  }
  Print("contrast of the index", contrasts, 2);
  std::cout << "  to 1, the least\n";
  return std::ranges::min(contrasts) >= LeastContrast;
}

}  // namespace
}  // namespace Parlino

int main(int count, char* arguments[]) {
  using namespace Parlino;
  // Nothing is shown on a screen, so none is needed.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, arguments);
  PrintHeading();
  bool isFine = true;
  for (const Mark& mark : Marks) isFine = WeighTheSame(mark) && isFine;
  isFine = StandOut() && isFine;
  if (!isFine) std::cerr << "parlino-measure-ink: the suits differ or an index is too pale\n";
  return isFine ? 0 : 1;
}
