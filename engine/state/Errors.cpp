#include "engine/state/Errors.h"

#include <cerrno>
#include <limits>

namespace Parlino {

void RaiseIndexError(int index, int first, int last) {
  throw GameError(EDOM, "Index " + std::to_string(index) + " is outside " + std::to_string(first) +
                            " to " + std::to_string(last));
}

Integer ToInteger(int value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
    throw GameError(ERANGE, "The number " + std::to_string(value) + " is too large to be kept");
  return static_cast<Integer>(value);
}

}  // namespace Parlino
