#include "engine/state/Questions.h"

namespace Parlino {

const std::string& NameOf(Integer seat) {
  return seat == Player ? PlayerName : SeatNames[seat];
}

int HumansPosition() {
  return (SeatsAtTable - Leader) % SeatsAtTable + 1;
}

bool HoldsLedSuit(Integer seat) {
  return !HandOf(seat, LedSuit).IsEmpty();
}

bool MayPlayCard(Integer seat, Integer card, int position) {
  if (Pack[card].Owner != seat) return false;
  return position == 1 || Pack[card].Suit == LedSuit || !HoldsLedSuit(seat);
}

CardSet CardsHumanMayPlay() {
  if (PlayerTurn == False) return {};
  return CardSet::OfPack([position = HumansPosition()](int card) {
    return MayPlayCard(Player, static_cast<Integer>(card), position);
  });
}

Integer WinnerOfTrick() {
  int winning = 1;
  for (int position = 2; position <= SeatsAtTable; ++position) {
    const Card& card = Pack[TrickCards[position]];
    const Card& best = Pack[TrickCards[winning]];
    if (card.Suit == best.Suit ? card.Value > best.Value : card.Suit == TrumpSuit)
      winning = position;
  }
  return TrickSeats[winning];
}

int OurTricks() {
  return TricksWon[Player] + TricksWon[North];
}

int TheirTricks() {
  return TricksWon[West] + TricksWon[East];
}

Integer HandScore(int tricks, int bid) {
  return ToInteger(tricks >= bid ? 10 * bid + (tricks - bid) : -10 * bid);
}

bool GameIsOver() {
  return (OurPoints >= TargetPoints || TheirPoints >= TargetPoints) && OurPoints != TheirPoints;
}

}  // namespace Parlino
