// What a person can do to the program, done at its windows.
#pragma once

#include "tests/chaos/window/Fingers.h"

namespace Parlino {

// Does the deed in one of the ways that the window offers, or something to a box that is in front
// of the table. Returns whether the control was on the screen.
bool DoAtWindow(const Deed& deed, Fingers& fingers);

// Does something without any purpose: presses any key, clicks anywhere, resizes windows, leaves
// menus open or, rarely, ends the desktop's session.
void PlayPrank(Fingers& fingers);

}  // namespace Parlino
