#include "tools/picture-maker/Pips.h"

namespace Parlino {
namespace {

constexpr double MiddleX = 35.5, MiddleY = 48, ToTheSide = 9.5;

std::vector<double> PlaceSideRows(int value) {
  switch (value) {
    case 4:
    case 5:
      return {15, 81};
    case 6:
    case 7:
    case 8:
      return {15, 48, 81};
    case 9:
    case 10:
      return {15, 37, 59, 81};
    default:
      return {};
  }
}

std::vector<double> PlaceMiddleRows(int value) {
  switch (value) {
    case 2:
      return {15, 81};
    case 3:
      return {15, 48, 81};
    case 5:
    case 9:
      return {48};
    case 7:
      return {31.5};
    case 8:
      return {31.5, 64.5};
    case 10:
      return {26, 70};
    default:
      return {};
  }
}

}  // namespace

std::vector<Spot> PlacePips(int value) {
  std::vector<Spot> spots;
  for (const double y : PlaceSideRows(value)) {
    spots.push_back({MiddleX - ToTheSide, y});
    spots.push_back({MiddleX + ToTheSide, y});
  }
  for (const double y : PlaceMiddleRows(value)) spots.push_back({MiddleX, y});
  return spots;
}

bool IsTurned(Spot spot) {
  return spot.y > MiddleY;
}

}  // namespace Parlino
