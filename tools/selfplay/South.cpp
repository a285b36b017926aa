#include "tools/selfplay/South.h"

#include <algorithm>
#include <string_view>

#include "engine/TrickPlay.h"
#include "robots/Bidding.h"
#include "robots/FourthHand.h"
#include "robots/Lead.h"
#include "robots/SecondAndThirdHand.h"
#include "table/TableEvents.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr double PlayersRow = 6600;  // where the Player's hand lies, twips

bool LiesInPlayersHand(int card) {
  const PictureBox& picture = Table.Cds[card];
  return picture.Place.Top == PlayersRow && picture.Visible && picture.Picture == card;
}

int ChooseCardAsRobot() {
  switch (HumansPosition()) {
    case 1:
      return ChooseFirstCard(Player);
    case 2:
      return ChooseSecondCard(Player);
    case 3:
      return ChooseThirdCard(Player);
    default:
      return ChooseFourthCard(Player);
  }
}

// Of the cards, those of the suit led; all of them when there is none or nothing has been led.
void KeepPlayable(std::vector<int>& cards) {
  const int suit = SuitLedByList();
  if (suit == 0) return;
  const int first = FirstCardOf(suit);
  const auto isOfSuit = [first](int card) { return card >= first && card < first + CardsInSuit; };
  if (std::any_of(cards.begin(), cards.end(), isOfSuit))
    std::erase_if(cards, [&](int card) { return !isOfSuit(card); });
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
  if (kind_ == SouthKind::Robot) return ChooseCardAsRobot();
  cards_.clear();
  for (int card = 1; card <= CardsInPack; ++card)
    if (LiesInPlayersHand(card)) cards_.push_back(card);
  KeepPlayable(cards_);
  return cards_.at(static_cast<std::size_t>(generator_.NextBelow(static_cast<int>(cards_.size()))));
}

}  // namespace Parlino
