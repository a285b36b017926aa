// The one place that knows both the table's events and the procedures that handle them.
#pragma once

namespace Parlino {

class Platform;

// Makes a fresh game on the platform: state, table and other windows as at the start of the
// program, and every event bound to its handler.
void SetUpGame(Platform& platform);

// Loads the table window and processes events until the program ends. Reports the error of a
// handler that has no report of its own, and goes on. Returns the exit status.
int RunGame();

}  // namespace Parlino
