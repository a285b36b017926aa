// A game without a window for the tests: a platform and a table set up on it.
#pragma once

#include <string>
#include <string_view>

#include "engine/state/GameState.h"
#include "headless/Headless.h"
#include "headless/South.h"

namespace Parlino {

// Sets up a fresh game and seeds its deal. The tests drive it through `platform.script`.
class HeadlessGame {
 public:
  explicit HeadlessGame(std::uint64_t seed = 1);

  // Loads the table window without entering the program's own loop.
  static void Load();

  HeadlessPlatform platform;
};

// The card number of a card in two letters, "QH" or "TS".
int CardOf(std::string_view letters);

// Puts the cards, blank-separated two-letter names, into the seat's hand.
void GiveHand(Integer seat, std::string_view cards);

// Puts the cards into the trick in playing order from `leader` on, as played.
void SetTrick(Integer leader, std::string_view cards);

// A suit by its letter D, C, H or S.
Integer SuitOf(char letter);

// Whether the platform's record holds a line that contains `text`.
bool Recorded(const HeadlessPlatform& platform, std::string_view text);

}  // namespace Parlino
