#include "tools/picture-maker/Suit.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Parlino {
namespace {

// The two reds and the two blacks also differ a little in hue: one red leans towards orange and one
// black towards green, so the suit can be told at a glance.
constexpr std::array Suits{
    Suit{"diamonds", "#ce3200", "#fff3d2"},
    Suit{"clubs", "#0b5a34", "#e6f3dc"},
    Suit{"hearts", "#b00032", "#ffe6e4"},
    Suit{"spades", "#0b0b18", "#e2e8f8"},
};

}  // namespace

const Suit& SuitOfCard(int card) {
  return Suits.at(static_cast<unsigned>((card - 1) / 13));
}

const Suit& SuitNamed(const char* name) {
  return *std::ranges::find(Suits, std::string_view(name),
                            [](const Suit& suit) { return std::string_view(suit.name); });
}

}  // namespace Parlino
