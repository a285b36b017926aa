#include "tools/picture-maker/Pips.h"

namespace Parlino {
namespace {

constexpr double MiddleX = 35.5, MiddleY = 48;

// On a nine and a ten the columns stand further apart, to make room for the pips in the middle.
double ToTheSide(int value) {
  return value < 9 ? 10 : 11;
}

std::vector<double> PlaceSideRows(int value) {
  switch (value) {
    case 4:
    case 5:
      return {14, 82};
    case 6:
    case 7:
    case 8:
      return {14, 48, 82};
    case 9:
    case 10:
      return {14, 36.6, 59.4, 82};
    default:
      return {};
  }
}

std::vector<double> PlaceMiddleRows(int value) {
  switch (value) {
    case 2:
      return {14, 82};
    case 3:
      return {14, 48, 82};
    case 5:
    case 9:
      return {48};
    case 7:
      return {31};
    case 8:
      return {31, 65};
    case 10:
      return {25.3, 70.7};
    default:
      return {};
  }
}

}  // namespace

std::vector<Spot> PlacePips(int value) {
  std::vector<Spot> spots;
  for (const double y : PlaceSideRows(value)) {
    spots.push_back({MiddleX - ToTheSide(value), y});
    spots.push_back({MiddleX + ToTheSide(value), y});
  }
  for (const double y : PlaceMiddleRows(value)) spots.push_back({MiddleX, y});
  return spots;
}

bool IsTurned(Spot spot) {
  return spot.y > MiddleY;
}

}  // namespace Parlino
