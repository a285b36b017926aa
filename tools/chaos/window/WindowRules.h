// What must hold of the program's windows whenever they have just been shown.
#pragma once

#include <string>

namespace Parlino {

// The name of the first rule that is broken; empty when all hold. `boxesOpen` is the number of
// plain boxes that the game has asked for and waits for.
std::string BrokenWindowRule(int boxesOpen);

// Whether any window of the program is on the screen.
bool IsAnyWindowThere();

}  // namespace Parlino
