// Keyboard navigation in the bidding panel: which number is marked.
#pragma once

#include <cstdint>

namespace Parlino {

inline constexpr int BidsInRow = 6;  // the thirteenth stands alone below them

class BidWalk {
 public:
  // The marked number 1..13.
  [[nodiscard]] int Number() const { return number_; }

  void GoTo(int number);
  void GoToFirst() { GoTo(1); }
  void GoToLast();
  // Move the mark along the numbers, or between the two rows of six and the thirteenth below them;
  // at the edge of the panel it stays.
  void GoLeft() { GoTo(number_ - 1); }
  void GoRight() { GoTo(number_ + 1); }
  void GoUp();
  void GoDown();

  // A digit 0..9 typed at tick `now`. A second one shortly after a 1 makes 10 to 13; digits that do
  // not make a bid are ignored.
  void Type(int digit, std::uint32_t now);

 private:
  int number_ = 1;
  bool oneWasTyped_ = false;
  std::uint32_t typedAt_ = 0;
};

}  // namespace Parlino
