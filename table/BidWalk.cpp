#include "table/BidWalk.h"

#include <algorithm>

#include "engine/GameState.h"

namespace Parlino {
namespace {

constexpr int PerRow = 6;
constexpr int AboveThirteen = 9;
constexpr std::uint32_t MomentMs = 1000;

}  // namespace

void BidWalk::GoTo(int number) {
  number_ = std::clamp(number, 1, TricksInHand);
  oneWasTyped_ = false;
}

void BidWalk::GoUp() {
  if (number_ == TricksInHand)
    GoTo(AboveThirteen);
  else if (number_ > PerRow)
    GoTo(number_ - PerRow);
}

void BidWalk::GoDown() {
  GoTo(number_ + (number_ > PerRow ? TricksInHand : PerRow));
}

void BidWalk::Type(int digit, std::uint32_t now) {
  constexpr int ten = 10;
  const bool isSecond = oneWasTyped_ && now - typedAt_ <= MomentMs;
  if (isSecond && ten + digit <= TricksInHand)
    GoTo(ten + digit);
  else if (digit > 0)
    GoTo(digit);
  oneWasTyped_ = digit == 1 && number_ == 1;
  typedAt_ = now;
}

}  // namespace Parlino
