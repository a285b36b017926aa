// States of the game by number, each with a record of names of another length.
#pragma once

#include <cstdint>

#include "engine/state/GameState.h"
#include "persistence/DataFiles.h"
#include "persistence/Records.h"

namespace Parlino {

// Puts the state into the game, and returns what the file of names holds when it is saved.
inline std::string PutState(std::uint32_t number) {
  constexpr std::uint32_t longestName = 3000;
  RecordWriter record;
  for (Integer seat = Player; seat <= East; ++seat) {
    const std::size_t length = number * (31U + static_cast<std::uint32_t>(seat)) % longestName;
    SeatNames[seat] = std::to_string(number).append(length, static_cast<char>('a' + seat));
    record.Add(SeatNames[seat]);
  }
  PlayerName = SeatNames[Player];
  return record.Line();
}

}  // namespace Parlino
