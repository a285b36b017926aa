#pragma once

#include <vector>

namespace Parlino {

struct Spot {
  double x, y;
};

// Where the pips of a two up to a ten stand, in the classical arrangement.
std::vector<Spot> PlacePips(int value);

// The pips of the lower half stand on their heads.
bool IsTurned(Spot spot);

}  // namespace Parlino
