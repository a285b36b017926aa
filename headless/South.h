// A South that plays by itself at the table without a window: it sees the controls and raises their
// events.
#pragma once

#include <cstdint>
#include <functional>

#include "engine/Generator.h"
#include "engine/state/GameState.h"

namespace Parlino {

class South {
 public:
  // Begins hand after hand until `hands` of them have been scored, and then saves and leaves. Gives
  // up, as a script that has nothing to say, when hands come to no end.
  explicit South(int hands, int bid = 3) : chooseBid([bid] { return bid; }), hands_(hands) {}

  // What to bid and which card to play: the same bid each time and the first card that may be
  // played, unless something else is put in their place.
  std::function<int()> chooseBid;
  std::function<int()> chooseCard = FirstCardAllowed;
  // Called at every dialog, before it is answered.
  std::function<void()> onDialog = [] {};

  // Does what the game waits for.
  void OnEvents(std::uint32_t atMostMs);
  // Bids or plays a card if the table asks for it, and returns whether it did.
  bool Act();
  // Counts a hand that an error has ended.
  void CountHand() { ++handsScored_; }
  [[nodiscard]] int HandsScored() const { return handsScored_; }

  static int FirstCardAllowed();

 private:
  void AnswerDialog();
  void BeginHandOrLeave();

  int hands_;
  int handsScored_ = 0;
  int handsBegun_ = 0;
};

// Lets a robot decide for South.
void PlayAsRobot(South& south);

// Lets chance decide. It knows the led suit from the list of cards played only.
void PlayAtRandom(South& south, std::uint64_t seed);

}  // namespace Parlino
