// What is counted while hands are played. Sessions are added up, so everything is a plain number.
#pragma once

#include <array>

#include "engine/state/GameState.h"

namespace Parlino {

// The figures of a seat, or of the two partners of a team together.
struct Side {
  long tricks = 0;
  long bid = 0;
  long made = 0;
  long failed = 0;
  long halfTricks = 0;  // left out of robots' bids; of seats only
  long points = 0;      // of teams only, as are games
  long gamesWon = 0;

  void Count(int tricksWon, int tricksBid);
  void Add(const Side& other);
};

struct Figures {
  long hands = 0;
  long games = 0;
  long errors = 0;
  std::array<Side, SeatsAtTable> seats;
  std::array<Side, 2> teams;  // ours and theirs

  // Counts the hand that has just been scored.
  void CountHand(bool isGameOver);
  // Counts the half trick that a robot's bid for the hand it holds leaves out, if it does.
  void CountHalfTrick(Integer seat);
  void Add(const Figures& other);
};

}  // namespace Parlino
