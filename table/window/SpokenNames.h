// What assistive tools say of the pictures on the table.
#pragma once

#include <QString>

#include "engine/Errors.h"

namespace Parlino {

// "Queen of Hearts" for a face, "Card face down" for a back: never more than can be seen.
QString SpokenCard(Integer picture);

// "Trumps Hearts", or empty text without a picture.
QString SpokenTrumps(Integer picture);

// "Player", "West", "North" or "East".
QString SpokenSeat(int seat);

}  // namespace Parlino
