#include "engine/state/Errors.h"

#include <cerrno>
#include <limits>

#include "engine/state/JoinText.h"

namespace Parlino {

void RaiseIndexError(int index, int first, int last) {
  throw GameError(EDOM, JoinText({"Index ", index, " is outside ", first, " to ", last}));
}

Integer ToInteger(int value) {
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
    throw GameError(ERANGE, JoinText({"The number ", value, " is too large to be kept"}));
  return static_cast<Integer>(value);
}

}  // namespace Parlino
