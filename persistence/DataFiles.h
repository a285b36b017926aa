// The four data files in the program's folder, each a single record: names, statistics, the saved
// game, and whether the welcome panel is hidden.
#pragma once

#include <string_view>

namespace Parlino {

// Their fields: PlayerName and SeatNames[1..3]; GamesWon and GamesPlayed; OurPoints, TheirPoints
// and GameInProgress; HideWelcome.
inline constexpr std::string_view NamesFile = "Names2.dat";
inline constexpr std::string_view PointsFile = "Points.dat";
inline constexpr std::string_view SaveGameFile = "SaveGame.dat";
inline constexpr std::string_view WelcomeFile = "Welcome.dat";

// What a file holds when the game is new.
struct FirstRecord {
  std::string_view file;
  std::string_view record;
};
inline constexpr FirstRecord FirstRecords[] = {
    {NamesFile, "\"Player\",\"West\",\"North\",\"East\"\r\n"},
    {PointsFile, "0,0\r\n"},
    {SaveGameFile, "0,0,#FALSE#\r\n"},
    {WelcomeFile, "#FALSE#\r\n"},
};

// Reads one of the four files into the game state, whole or not at all. A missing, unreadable or
// malformed file raises a GameError that names it and the reason and leaves the state as it was; a
// malformed one is first set aside, and the error says where it is now.
void ReadRecord(std::string_view file);

// Sets the game state to what the file holds when the game is new.
void UseFirstRecord(std::string_view file);

// Each replaces its file with the values of the game state and returns whether that succeeded. A
// plain message box tells the player when a file cannot be written, and where an old one that could
// not be read is kept. The values stay as they are.
bool SaveGame();
bool SavePoints();
bool SaveNames();
bool SaveWelcome();

// Writes what SavePoints and SaveGame will write once the player has answered the dialog at the end
// of a game; until then the totals stay. A failure is not reported here: the saving after the
// answer reports it. The player is told at once where an old file that could not be read is kept.
void SaveEndedGame();

}  // namespace Parlino
