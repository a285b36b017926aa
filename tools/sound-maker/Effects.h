#pragma once

#include "tools/sound-maker/Sound.h"

namespace Parlino {

// A pack of cards being riffled together and knocked straight.
Sound MakeShuffle();

// A card being put on a cloth.
Sound MakeCard();

// A small bell ringing out.
Sound MakeBell();

}  // namespace Parlino
