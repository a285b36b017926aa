#include "tools/kill-saves/States.h"

#include "engine/state/GameState.h"
#include "headless/Headless.h"

namespace Parlino {

// Names of very different length, so that a new record laid over an old one would show.
void PutState(std::uint32_t number) {
  constexpr std::uint32_t longestName = 3000;
  constexpr int pointsInRow = 30'000;
  for (Integer seat = Player; seat <= East; ++seat) {
    const std::size_t length = number * (31U + static_cast<std::uint32_t>(seat)) % longestName;
    SeatNames[seat] = std::to_string(number).append(length, static_cast<char>('a' + seat));
  }
  PlayerName = SeatNames[Player];
  GamesWon = static_cast<Integer>(number % pointsInRow);
  GamesPlayed = static_cast<Integer>(number / pointsInRow);
  OurPoints = static_cast<Integer>(-GamesWon);
  TheirPoints = GamesPlayed;
  GameInProgress = HideWelcome = number % 2 == 0 ? False : True;
}

std::string ContentInState(const SavedRecord& record, std::uint32_t number) {
  HeadlessPlatform platform;
  UsePlatform(platform);
  PutState(number);
  record.save();
  PlatformInUse = nullptr;
  return platform.files.find(record.file)->second;
}

}  // namespace Parlino
