// The menu commands for names, statistics, loading a saved game and leaving, the question asked
// when the table window is closed, and the welcome panel's button. They can be chosen at any
// moment, even in the middle of a hand.
#pragma once

namespace Parlino {

// Each asks for a name, saves all names and shows them. The name is taken as entered, without what
// a record cannot hold; Cancel makes it empty.
void MnuPname_Click();
void MnuNameBot1_Click();
void MnuNameBot2_Click();
void MnuBot3Name_Click();

// Shows how many games were won; changes nothing.
void MnuView_Click();

// Asks, and on a yes resets the statistics to zero.
void ErasePoints_Click();

// Reads the saved game and deals its next hand, or says that there is none and deals with the
// totals as they stand. Abandons a hand under way.
void MnuLoad_Click();

// Leaves the program, asking first while a game is in progress. Nothing is saved.
void MnuExit_Click();

// The player closes the table window: asks, and leaves the program or goes on.
void Form_QueryUnload();

// Hides the welcome panel from the next start on.
void CmdDontShow_Click();

}  // namespace Parlino
