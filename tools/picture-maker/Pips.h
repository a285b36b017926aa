#pragma once

#include <vector>

namespace Parlino {

struct Spot {
  double x, y;
};

struct Size {
  double width, height;
};

// Where the pips of a card from two to ten are, in the classic arrangement, right of the strip that
// a covered card shows. Every pip fills whole pixels, so that its foot is a sharp line.
std::vector<Spot> PlacePips(int value);

// How large each of them is: one size from four to ten, a larger one below.
Size PipSize(int value);

// The pips of the lower half are upside down.
bool IsTurned(Spot spot);

}  // namespace Parlino
