// The commands that open the help and the about window.
#pragma once

namespace Parlino {

// "Rules and Help": says that the help document is not available. Reports its own errors.
void MnuRules_Click();

// "About": says what program this is, and its version.
void MnuAbout_Click();

}  // namespace Parlino
