// A game without a window for the tests: a platform, a table set up on it, and a South that plays.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "engine/state/GameState.h"
#include "headless/Headless.h"

namespace Parlino {

// Sets up a fresh game and seeds its deal. The tests drive it through `platform.script`.
class HeadlessGame {
 public:
  explicit HeadlessGame(std::uint64_t seed = 1);

  // Loads the table window without entering the program's own loop.
  static void Load();

  HeadlessPlatform platform;
};

// A person who plays whole hands: presses F2 when nothing is under way, bids `bid`, plays the first
// card that may be played, and answers dialogs with the first button until `hands` hands have been
// scored; then with the second.
class PlainPlayer {
 public:
  explicit PlainPlayer(int hands, int bid = 3) : hands_(hands), bid_(bid) {}

  void OnEvents(std::uint32_t atMostMs);
  [[nodiscard]] int HandsScored() const { return handsScored_; }
  // Called at every dialog, before it is answered.
  std::function<void()> onDialog = [] {};

 private:
  void AnswerDialog();

  int hands_;
  int bid_;
  int handsScored_ = 0;
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
