#include "engine/state/Questions.h"

#include "engine/state/ErrorReport.h"

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

bool CardGoneQuery(Integer value, Integer suit) {
  return ReportErrors("CardGoneQuery", [value, suit] { return HoldsCard(NoSeat, value, suit); });
}

bool MayPlayCard(Integer card) {
  if (Pack[card].Owner != Player) return false;
  return Leader == Player || Pack[card].Suit == LedSuit || !HoldsLedSuit(Player);
}

CardSet CardsHumanMayPlay() {
  if (PlayerTurn == False) return {};
  return CardSet::OfPack([](int card) { return MayPlayCard(static_cast<Integer>(card)); });
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
