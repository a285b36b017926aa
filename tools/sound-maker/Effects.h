#pragma once

#include "tools/sound-maker/Sound.h"

namespace Parlino {

// A pack of cards is riffled together and pushed straight.
Sound MakeShuffle();

// A card is put on a cloth.
Sound MakeCard();

// A small bell rings out.
Sound MakeBell();

}  // namespace Parlino
