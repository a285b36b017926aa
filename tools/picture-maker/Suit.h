#pragma once

namespace Parlino {

struct Suit {
  const char* name;
  const char* colour;
  const char* tint;  // behind the court figures
};

// Cards 1 to 52 are in order of suit.
const Suit& SuitOfCard(int card);

// The suit with this English plural name.
const Suit& SuitNamed(const char* name);

}  // namespace Parlino
