// The data files of a new game, for tests and tools that must not touch a player's own files.
#pragma once

#include "persistence/DataFiles.h"
#include "platform/Platform.h"

namespace Parlino {

// Writes the four files of a new game, in place of those that the platform has.
inline void WriteFirstRecords() {
  for (const FirstRecord& first : FirstRecords) ThePlatform().ReplaceFile(first.file, first.record);
}

}  // namespace Parlino
