#include "tests/support/RecordFaults.h"

#include "engine/state/Errors.h"
#include "headless/Headless.h"

namespace Parlino {
namespace {

// Values that no sample has, so that a field taken too early shows.
void PutOddValues() {
  PlayerName = SeatNames[West] = SeatNames[North] = SeatNames[East] = "kept";
  OurPoints = TheirPoints = GamesWon = GamesPlayed = 4321;
  GameInProgress = HideWelcome = 7;
}

std::string FindFaultOfRefused(const HeadlessPlatform& platform, const RecordDoor& door,
                               std::string_view content, std::string_view reason) {
  const auto aside = platform.files.find(std::string(door.file) + ".bad");
  if (aside == platform.files.end() || aside->second != content) return "it is not set aside";
  if (!reason.starts_with(std::string(door.file) + " cannot be understood: "))
    return "no reason is given";
  return {};
}

std::string FindFaultOfAccepted(const RecordDoor& door) {
  const Kept taken = KeptValues();
  if (!door.save()) return "what was read cannot be saved";
  PutOddValues();
  try {
    ReadRecord(door.file);
  } catch (const GameError& error) {
    return std::string("what was saved cannot be read: ") + error.what();
  }
  return KeptValues() == taken ? "" : "it changes when it is saved and read again";
}

}  // namespace

RecordVerdict TryRecord(const RecordDoor& door, std::string_view content) {
  HeadlessPlatform platform;
  UsePlatform(platform);
  platform.files.insert_or_assign(std::string(door.file), std::string(content));
  PutOddValues();
  const Kept before = KeptValues();
  try {
    ReadRecord(door.file);
  } catch (const GameError& error) {
    if (KeptValues() != before) return {false, "", "it is refused, yet taken in part"};
    return {false, "", FindFaultOfRefused(platform, door, content, error.what())};
  }
  const std::string fault = FindFaultOfAccepted(door);
  return {true, platform.files.find(door.file)->second, fault};
}

}  // namespace Parlino
