#pragma once

#include "tools/picture-maker/Drawing.h"

namespace Parlino {

// The front of card 1 to 52: diamonds, clubs, hearts, spades, each from the two up to the ace.
Drawing ComposeFace(const std::filesystem::path& sources, int card);

}  // namespace Parlino
