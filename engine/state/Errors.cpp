#include "engine/state/Errors.h"

#include <cerrno>

#include "engine/state/JoinText.h"

namespace Parlino {

void RaiseIndexError(int index, int first, int last) {
  throw GameError(EDOM, JoinText({"Index ", index, " is outside ", first, " to ", last}));
}

void RaiseRangeError(int value) {
  throw GameError(ERANGE, JoinText({"The number ", value, " is too large to be kept"}));
}

}  // namespace Parlino
