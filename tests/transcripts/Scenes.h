// Small games that are written down.
#pragma once

#include <string_view>

#include "tests/support/TranscribedPlatform.h"

namespace Parlino {

struct Scene {
  std::string_view name;
  void (*play)(TranscribedPlatform& platform);
};

extern const Scene Scenes[9];

// Whole hands and games, played from the files that they find.
void PlayFirstHands(TranscribedPlatform& platform);
void EndGames(TranscribedPlatform& platform);
void ReachTheEdges(TranscribedPlatform& platform);
void GoOnWithSavedGames(TranscribedPlatform& platform);
void LoadGames(TranscribedPlatform& platform);
void PlayInTrouble(TranscribedPlatform& platform);

// The commands of the menus and of the windows, and starts.
void GiveNames(TranscribedPlatform& platform);
void ChooseCommands(TranscribedPlatform& platform);
void StartInTrouble(TranscribedPlatform& platform);

void ShowRareThings(TranscribedPlatform& platform);

// A game that deals from this seed and is transcribed from here on.
void SetUp(TranscribedPlatform& platform, std::uint64_t seed, bool isOpeningTold = false);

}  // namespace Parlino
