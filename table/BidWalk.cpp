#include "table/BidWalk.h"

#include <algorithm>
#include <utility>

#include "engine/state/GameState.h"

namespace Parlino {
namespace {

constexpr int AboveThirteen = 9;
constexpr std::uint32_t MomentMs = 1000;

}  // namespace

void BidWalk::GoTo(int number) {
  number = std::clamp(number, 1, TricksInHand);
  if (std::exchange(number_, number) != number) oneWasTyped_ = false;
}

void BidWalk::GoToLast() {
  GoTo(TricksInHand);
}

void BidWalk::GoUp() {
  if (number_ == TricksInHand)
    GoTo(AboveThirteen);
  else if (number_ > BidsInRow)
    GoTo(number_ - BidsInRow);
}

void BidWalk::GoDown() {
  GoTo(number_ > BidsInRow ? TricksInHand : number_ + BidsInRow);
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
