#include "tools/selfplay/Figures.h"

#include "engine/state/Questions.h"
#include "robots/Bidding.h"

namespace Parlino {

void Side::Count(int tricksWon, int tricksBid) {
  tricks += tricksWon;
  bid += tricksBid;
  ++(tricksWon >= tricksBid ? made : failed);
}

void Side::Add(const Side& other) {
  for (long Side::*figure : {&Side::tricks, &Side::bid, &Side::made, &Side::failed,
                             &Side::halfTricks, &Side::points, &Side::gamesWon})
    this->*figure += other.*figure;
}

void Figures::CountHand(bool isGameOver) {
  ++hands;
  for (int seat = Player; seat <= East; ++seat)
    seats[static_cast<std::size_t>(seat)].Count(TricksWon[seat], Bids[seat]);
  auto& [ours, theirs] = teams;
  ours.Count(OurTricks(), OurBid);
  theirs.Count(TheirTricks(), TheirBid);
  ours.points += OurHandScore;
  theirs.points += TheirHandScore;
  if (!isGameOver) return;
  ++games;
  ++(OurPoints > TheirPoints ? ours : theirs).gamesWon;
}

void Figures::CountHalfTrick(Integer seat) {
  seats[static_cast<std::size_t>(seat)].halfTricks += LowerTrumps(seat) % 2;
}

void Figures::Add(const Figures& other) {
  hands += other.hands;
  games += other.games;
  errors += other.errors;
  for (std::size_t seat = 0; seat < seats.size(); ++seat) seats[seat].Add(other.seats[seat]);
  for (std::size_t team = 0; team < teams.size(); ++team) teams[team].Add(other.teams[team]);
}

}  // namespace Parlino
