#include "tools/picture-maker/Pips.h"

namespace Parlino {
namespace {

constexpr double FieldX = 47.5, MiddleY = 48, ToTheSide = 13;
constexpr int LastLargeValue = 3;

// The few large pips stand between the middle of the card and that of the field: the card would
// lean to one side otherwise.
double PlaceMiddleColumn(int value) {
  constexpr double balancedX = 38.5;
  return value <= LastLargeValue ? balancedX : FieldX;
}

std::vector<double> PlaceSideRows(int value) {
  switch (value) {
    case 4:
    case 5:
      return {12, 84};
    case 6:
    case 7:
    case 8:
      return {12, 48, 84};
    case 9:
    case 10:
      return {12, 36, 60, 84};
    default:
      return {};
  }
}

std::vector<double> PlaceMiddleRows(int value) {
  switch (value) {
    case 2:
      return {16, 80};
    case 3:
      return {16, 48, 80};
    case 5:
    case 9:
      return {48};
    case 7:
      return {30};
    case 8:
      return {30, 66};
    case 10:
      return {24, 72};
    default:
      return {};
  }
}

}  // namespace

std::vector<Spot> PlacePips(int value) {
  std::vector<Spot> spots;
  for (const double y : PlaceSideRows(value)) {
    spots.push_back({FieldX - ToTheSide, y});
    spots.push_back({FieldX + ToTheSide, y});
  }
  for (const double y : PlaceMiddleRows(value)) spots.push_back({PlaceMiddleColumn(value), y});
  return spots;
}

Size PipSize(int value) {
  return value <= LastLargeValue ? Size{17, 18} : Size{13, 14};
}

bool IsTurned(Spot spot) {
  return spot.y > MiddleY;
}

}  // namespace Parlino
