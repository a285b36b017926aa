// The data files of a new game, for tests and tools that must not touch a player's own.
#pragma once

#include "persistence/DataFiles.h"
#include "platform/Platform.h"

namespace Parlino {

// Gives the platform the four files of a new game, in place of those it has.
inline void WriteFirstRecords() {
  for (const FirstRecord& first : FirstRecords) ThePlatform().ReplaceFile(first.file, first.record);
}

}  // namespace Parlino
