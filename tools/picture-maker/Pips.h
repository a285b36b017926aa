#pragma once

#include <vector>

namespace Parlino {

struct Spot {
  double x, y;
};

// Where the pips of a card from two to ten are, in the classic arrangement.
std::vector<Spot> PlacePips(int value);

// The pips of the lower half are upside down.
bool IsTurned(Spot spot);

}  // namespace Parlino
