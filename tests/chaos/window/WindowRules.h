// What must be true of the program's windows whenever they have just been shown.
#pragma once

namespace Parlino {

// Raises RuleBroken with the first rule that does not hold. Positions are compared only while
// nothing glides.
void RequireWindowRules(bool nothingGlides);

}  // namespace Parlino
