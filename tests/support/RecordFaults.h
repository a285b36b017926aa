// What must hold for every data file, whatever is in it.
#pragma once

#include <string>
#include <string_view>
#include <tuple>

#include "engine/state/GameState.h"
#include "persistence/DataFiles.h"

namespace Parlino {

struct RecordDoor {
  std::string_view file;
  bool (*save)();
};
inline constexpr RecordDoor RecordDoors[] = {{NamesFile, SaveNames},
                                             {PointsFile, SavePoints},
                                             {SaveGameFile, SaveGame},
                                             {WelcomeFile, SaveWelcome}};

// Everything of the game that is kept in the files, as it is now.
inline auto KeptValues() {
  return std::tuple(PlayerName, SeatNames[West], SeatNames[North], SeatNames[East], OurPoints,
                    TheirPoints, GameInProgress, GamesWon, GamesPlayed, HideWelcome);
}
using Kept = decltype(KeptValues());

struct RecordVerdict {
  bool accepted;
  std::string savedAs;  // when accepted
  std::string fault;    // "" for none
};

// Reads the content as that file through a game without a disk. It is a fault when a refused record
// has touched the state or is not set aside with the reason, and when an accepted one, saved and
// read again, is not the same. Leaves the game state as the last reading did.
RecordVerdict TryRecord(const RecordDoor& door, std::string_view content);

}  // namespace Parlino
