#pragma once

namespace Parlino {

struct Suit {
  const char* name;
  const char* colour;
  const char* tint;  // behind the court figures
};

// Cards 1 to 52 come suit by suit.
const Suit& SuitOfCard(int card);

// Colours of the suit with this English plural name.
const Suit& SuitNamed(const char* name);

}  // namespace Parlino
