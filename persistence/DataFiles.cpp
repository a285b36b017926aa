#include "persistence/DataFiles.h"

#include "engine/state/ErrorReport.h"
#include "engine/state/GameState.h"
#include "engine/state/JoinText.h"
#include "persistence/Records.h"
#include "platform/Platform.h"

namespace Parlino {
namespace {

// A record is parsed into locals first: an error in its last field must not leave the first one in
// the game state.
void TakeNames(std::string_view record) {
  RecordReader reader(record);
  Indexed<std::string, 0, 3> names;
  for (std::string& name : names) name = reader.TakeText();
  reader.ExpectEnd();
  PlayerName = names[Player];
  for (Integer seat = West; seat <= East; ++seat) SeatNames[seat] = names[seat];
}

void TakePoints(std::string_view record) {
  RecordReader reader(record);
  const Integer won = reader.TakeInteger();
  const Integer played = reader.TakeInteger();
  reader.ExpectEnd();
  GamesWon = won;
  GamesPlayed = played;
}

void TakeSaveGame(std::string_view record) {
  RecordReader reader(record);
  const Integer ours = reader.TakeInteger();
  const Integer theirs = reader.TakeInteger();
  const Flag inProgress = reader.TakeFlag();
  reader.ExpectEnd();
  OurPoints = ours;
  TheirPoints = theirs;
  GameInProgress = inProgress;
}

void TakeWelcome(std::string_view record) {
  RecordReader reader(record);
  const Flag hide = reader.TakeFlag();
  reader.ExpectEnd();
  HideWelcome = hide;
}

void TakeRecord(std::string_view file, std::string_view record) {
  if (file == NamesFile) return TakeNames(record);
  if (file == PointsFile) return TakePoints(record);
  if (file == SaveGameFile) return TakeSaveGame(record);
  return TakeWelcome(record);
}

// Sets a malformed file aside and says where it is now, or why that was not possible.
std::string SetAside(std::string_view file) {
  try {
    return JoinText({"The file is kept as ", ThePlatform().SetFileAside(file)});
  } catch (const GameError& error) {
    return error.what();
  }
}

RecordWriter PointsRecord() {
  return RecordWriter().Add(GamesWon).Add(GamesPlayed);
}

RecordWriter SaveGameRecord(Integer ours, Integer theirs, Flag inProgress) {
  return RecordWriter().Add(ours).Add(theirs).AddFlag(inProgress);
}

// A file of the player's has been moved to `keptAs`; empty if there was none to move.
void TellWhereOldOneIs(std::string_view file, std::string_view keptAs) {
  if (keptAs.empty()) return;
  ThePlatform().MsgBox(JoinText({file,
                                 " could not be read and has been replaced. The file that was "
                                 "there is kept as ",
                                 keptAs}),
                       ApplicationTitle, false);
}

bool WriteRecord(std::string_view file, const RecordWriter& record) {
  try {
    TellWhereOldOneIs(file, ThePlatform().ReplaceFile(file, record.Line()));
    return true;
  } catch (const GameError& error) {
    ThePlatform().MsgBox(error.what(), ApplicationTitle, false);
    return false;
  }
}

}  // namespace

void ReadRecord(std::string_view file) {
  const std::string record = ThePlatform().ReadFile(file);
  try {
    TakeRecord(file, record);
  } catch (const GameError& error) {
    throw GameError(error.Number(), JoinText({file, " cannot be understood: ", error.what(), ". ",
                                              SetAside(file)}));
  }
}

void UseFirstRecord(std::string_view file) {
  for (const FirstRecord& first : FirstRecords)
    if (first.file == file) TakeRecord(file, first.record);
}

bool SaveGame() {
  return WriteRecord(SaveGameFile, SaveGameRecord(OurPoints, TheirPoints, GameInProgress));
}

bool SavePoints() {
  return WriteRecord(PointsFile, PointsRecord());
}

void SaveEndedGame() {
  std::string oldPoints;
  std::string oldGame;
  try {
    oldPoints = ThePlatform().ReplaceFile(PointsFile, PointsRecord().Line());
    oldGame = ThePlatform().ReplaceFile(SaveGameFile, SaveGameRecord(0, 0, False).Line());
  } catch (const GameError&) {
    // reported by the saving after the answer
  }
  TellWhereOldOneIs(PointsFile, oldPoints);
  TellWhereOldOneIs(SaveGameFile, oldGame);
}

bool SaveNames() {
  return WriteRecord(NamesFile, RecordWriter()
                                    .Add(PlayerName)
                                    .Add(SeatNames[West])
                                    .Add(SeatNames[North])
                                    .Add(SeatNames[East]));
}

bool SaveWelcome() {
  return WriteRecord(WelcomeFile, RecordWriter().AddFlag(HideWelcome));
}

}  // namespace Parlino
