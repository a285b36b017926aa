// Start-up: what happens between the opening of the table window and the player's first command.
#pragma once

namespace Parlino {

// Loads the table window: reads the data files, greets the players, shows or skips the welcome
// panel, creates the card pictures and builds the pack. A data file that cannot be read is reported
// and its first values are used; start-up goes on. Reports its own errors.
void Form_Load();

// Puts the four names with their greetings on the name labels.
void ShowNames();

}  // namespace Parlino
