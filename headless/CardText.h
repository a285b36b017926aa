// The text form of a card, for test failures.
#pragma once

#include <string>

namespace Parlino {

// A card in two letters, as in a bridge column: "QH", "TS"; "--" for a number that is no card.
std::string CardText(int card);

}  // namespace Parlino
