// States of the game by number, each unlike the others in all four records.
#pragma once

#include <cstdint>
#include <string>

#include "persistence/DataFiles.h"

namespace Parlino {

struct SavedRecord {
  std::string_view file;
  bool (*save)();
};
inline constexpr SavedRecord SavedRecords[] = {{NamesFile, SaveNames},
                                               {PointsFile, SavePoints},
                                               {SaveGameFile, SaveGame},
                                               {WelcomeFile, SaveWelcome}};
inline constexpr std::size_t RecordCount = std::size(SavedRecords);

// Puts the state into the game.
void PutState(std::uint32_t number);

// What the file of that record holds when the state is saved. Leaves the state in the game, and no
// platform in use.
std::string ContentInState(const SavedRecord& record, std::uint32_t number);

}  // namespace Parlino
