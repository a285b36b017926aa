#include "tests/transcripts/Scenes.h"

#include "engine/Generator.h"
#include "game/Game.h"

namespace Parlino {

void SetUp(TranscribedPlatform& platform, std::uint64_t seed, bool isOpeningTold) {
  SetUpGame(platform);
  DealGenerator.Seed(seed);
  platform.Begin(isOpeningTold);
}

const Scene Scenes[9] = {{"first-hand", PlayFirstHands}, {"ends-of-games", EndGames},
                         {"edges", ReachTheEdges},       {"saved-game", GoOnWithSavedGames},
                         {"loading", LoadGames},         {"names", GiveNames},
                         {"commands", ChooseCommands},   {"trouble", PlayInTrouble},
                         {"rare-things", ShowRareThings}};

}  // namespace Parlino
