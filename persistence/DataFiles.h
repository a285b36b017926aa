// The four data files of the program's folder, each one record: names, statistics, the saved game
// and the wish not to be welcomed.
#pragma once

#include <string_view>

namespace Parlino {

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

// Each reads its file into the game state, whole or not at all. A missing, unreadable or malformed
// file raises a GameError that names it and the reason and leaves the state as it was; a malformed
// one is first set aside, and the error says where it is now.
void ReadSaveGame();  // OurPoints, TheirPoints, GameInProgress
void ReadNames();     // PlayerName, SeatNames[1..3]
void ReadPoints();    // GamesWon, GamesPlayed
void ReadWelcome();   // HideWelcome

// Gives the platform the four files of a new game, in place of those it has.
void WriteFirstRecords();

// Puts what the file would hold in a new game into the game state.
void UseFirstRecord(std::string_view file);

// Each replaces its file by the values of the game state and returns whether it could. A plain
// message box tells the player of a file that cannot be written, and where an old one is kept that
// could not be read. The values stay as they are.
bool SaveGame();
bool SavePoints();
bool SaveNames();
bool SaveWelcome();

// Writes what SavePoints and SaveGame will write when the end of a game has been answered, while
// its totals still stand. Says nothing when it cannot: the saving after the answer does. An old
// file that could not be read is spoken of when both are written.
void SaveEndedGame();

}  // namespace Parlino
