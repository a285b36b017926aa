#include "headless/South.h"

#include <memory>

#include "engine/state/Questions.h"
#include "headless/Headless.h"
#include "robots/Bidding.h"
#include "robots/Choices.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

// Nothing else on the table lies at the height of the Player's row.
CardSet HandOnTable() {
  constexpr int playersRow = 6600;  // twips
  return CardSet::OfPack(
      [](int card) { return static_cast<int>(Table.Cds[card].Place.Top) == playersRow; });
}

// The suit that the list says was led to the trick on the table; 0 while the trick has no card.
int SuitLedByList() {
  const ListBox& list = Table.LstCardsPlayed;
  int line = list.Count();
  while (line > 0 && !list.Line(line - 1).starts_with('=')) --line;
  if (line == list.Count()) return 0;
  const std::string_view firstCard = list.Line(line);
  for (int suit = Diamonds; suit <= Spades; ++suit)
    if (firstCard.ends_with(SuitNameOf(suit))) return suit;
  return 0;
}

CardSet Playable(CardSet hand) {
  const int suit = SuitLedByList();
  if (suit == 0) return hand;
  const CardSet following = hand.Between(FirstCardOf(suit), FirstCardOf(suit) + CardsInSuit - 1);
  return following.IsEmpty() ? hand : following;
}

int ChooseAnyCard(Generator& chance) {
  const CardSet cards = Playable(HandOnTable());
  auto choice = cards.begin();
  for (int skipped = chance.NextBelow(cards.Count()); skipped > 0; --skipped) ++choice;
  return *choice;
}

}  // namespace

int South::FirstCardAllowed() {
  for (const Integer card : HandOf(Player))
    if (MayPlayCard(card)) return card;
  return 1;
}

void South::OnEvents(std::uint32_t atMostMs) {
  if (atMostMs != Forever) return;
  if (MFormDeluxe.Visible)
    AnswerDialog();
  else if (!Act())
    BeginHandOrLeave();
}

void South::BeginHandOrLeave() {
  if (++handsBegun_ > 2 * hands_ + 10) throw ScriptHasNothingToSay{};
  ChooseMenu(handsScored_ < hands_ ? MenuItem::MnuNew : MenuItem::MnuExit);
}

bool South::Act() {
  if (Table.FramBids.Visible) return ClickBid(chooseBid());
  if (PlayerTurn != False) return ClickCard(chooseCard());
  return false;
}

void South::AnswerDialog() {
  onDialog();
  const bool isHandScored =
      MFormDeluxe.Label3 == "   Scores" || MFormDeluxe.Label3 == "   Game Over";
  if (isHandScored) ++handsScored_;
  ClickAnswer(isHandScored && handsScored_ >= hands_ ? 1 : 0);
}

void PlayAsRobot(South& south) {
  south.chooseBid = [] { return GetBid(Player); };
  south.chooseCard = [] { return ChooseRobotsCard(HumansPosition(), Player); };
}

void PlayAtRandom(South& south, std::uint64_t seed) {
  const auto chance = std::make_shared<Generator>();
  chance->Seed(~seed);
  south.chooseBid = [chance] { return 1 + chance->NextBelow(TricksInHand); };
  south.chooseCard = [chance] { return ChooseAnyCard(*chance); };
}

}  // namespace Parlino
