// What must be true of the program's windows whenever they have just been shown.
#pragma once

#include <string>

namespace Parlino {

// The name of the first broken rule, or an empty string if all hold. `boxesOpen` is the number of
// plain boxes that the game has opened and is waiting for.
std::string BrokenWindowRule(int boxesOpen);

// Whether any window of the program is on the screen.
bool IsAnyWindowThere();

}  // namespace Parlino
