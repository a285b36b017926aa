#include "tools/selfplay/South.h"

#include <string_view>

#include "engine/state/Questions.h"
#include "robots/Bidding.h"
#include "robots/Choices.h"
#include "table/TableEvents.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr double PlayersRow = 6600;  // where the Player's hand lies, twips

bool LiesInPlayersHand(int card) {
  const PictureBox& picture = Table.Cds[card];
  return (picture.Picture == card) & picture.Visible & (picture.Place.Top == PlayersRow);
}

CardSet HandOnTable() {
  CardSet hand;
  for (int suit = Diamonds; suit <= Spades; ++suit)
    hand = hand | CardSet::OfSuit(FirstCardOf(suit), LiesInPlayersHand);
  return hand;
}

// The cards of the suit led, or the whole hand if it has none of them or nothing has been led.
CardSet Playable(CardSet hand) {
  const int suit = SuitLedByList();
  if (suit == 0) return hand;
  const CardSet following = hand.Between(FirstCardOf(suit), FirstCardOf(suit) + CardsInSuit - 1);
  return following.IsEmpty() ? hand : following;
}

}  // namespace

int SuitLedByList() {
  const ListBox& list = Table.LstCardsPlayed;
  int line = list.Count();
  while (line > 0 && !list.Line(line - 1).starts_with('=')) --line;
  if (line == list.Count()) return 0;
  for (int suit = Diamonds; suit <= Spades; ++suit)
    if (list.Line(line).ends_with(SuitNameOf(suit))) return suit;
  return 0;
}

South::South(SouthKind kind, std::uint64_t seed) : kind_(kind) {
  generator_.Seed(~seed);
}

bool South::Act() {
  if (Table.FramBids.Visible) return ClickBid(ChooseBid());
  if (Table.LblInfo.Caption.ends_with(" please play a card.")) return ClickCard(ChooseCard());
  return false;
}

int South::ChooseBid() {
  return kind_ == SouthKind::Robot ? GetBid(Player) : 1 + generator_.NextBelow(TricksInHand);
}

int South::ChooseCard() {
  if (kind_ == SouthKind::Robot) return ChooseRobotsCard(HumansPosition(), Player);
  const CardSet cards = Playable(HandOnTable());
  auto choice = cards.begin();
  for (int skipped = generator_.NextBelow(cards.Count()); skipped > 0; --skipped) ++choice;
  return *choice;
}

}  // namespace Parlino
