#include "tests/chaos/Referee.h"

#include <algorithm>

#include "engine/state/Questions.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

// The card that a line of the list names, 0 for the line between two tricks. A name may hold
// anything, so the last mark of the line counts.
int CardOfLine(std::string_view line) {
  constexpr std::string_view playedMark = " played ";
  const std::size_t mark = line.rfind(playedMark);
  if (mark == std::string_view::npos) return 0;
  const auto* card =
      std::ranges::find(Pack, line.substr(mark + playedMark.size()), &Card::FullName);
  return card == Pack.end() ? 0 : static_cast<int>(card - Pack.begin()) + 1;
}

bool Beats(const Card& card, const Card& best) {
  return card.Suit == best.Suit ? card.Value > best.Value : card.Suit == TrumpSuit;
}

int PointsFor(int tricks, int bid) {
  return tricks < bid ? -10 * bid : 10 * bid + tricks - bid;
}

bool IsOpen(std::string_view title) {
  return MFormDeluxe.Visible && MFormDeluxe.Label3 == title;
}

}  // namespace

std::string_view Referee::Look() {
  if (std::exchange(programBegins_, false)) {
    totals_ = {OurPoints, TheirPoints};
    statistics_ = {GamesWon, GamesPlayed};
    isGameOver_ = mayLoad_ = false;
    hand_.reset();
  }
  if (HandInProgress && TrumpSuit < Diamonds) hand_.reset();
  if (!DealIsGood()) return "thirteen cards for each seat";
  if (hand_ && !ListTellsAPossiblePlay()) return "the list tells a possible play";
  NoteScores();
  if (!CardsAreInOnePlaceEach()) return "each card is in one hand or has been played";
  if (!TrickAndTurnAgreeWithList()) return "bids, trick, turn and tricks won agree with the list";
  if (!TotalsAreTheSumOfHands()) return "totals are the sum of the hands scored";
  if (!StatisticsChangeAtTheEndOfAGame()) return "statistics change at the end of a game only";
  return {};
}

bool Referee::DealIsGood() {
  if (hand_ || !HandInProgress || TrumpSuit < Diamonds) return true;
  mayLoad_ = false;
  hand_ = Hand();
  hand_->leader = SeatAfter(Dealer);
  ++handsDealt_;
  for (int card = 1; card <= CardsInPack; ++card) hand_->dealtTo[card] = Pack[card].Owner;
  for (Integer seat = Player; seat <= East; ++seat)
    if (HandOf(seat).Count() != CardsInSuit) return false;
  return true;
}

bool Referee::ListTellsAPossiblePlay() {
  const ListBox& list = Table.LstCardsPlayed;
  if (hand_->bids.empty() && TrickNumber > 0) hand_->bids.assign(Bids.begin(), Bids.end());
  if (list.Count() < hand_->linesRead) return false;
  for (; hand_->linesRead < list.Count(); ++hand_->linesRead) {
    const int card = CardOfLine(list.Line(hand_->linesRead));
    if (card > 0 ? !TakeCard(card) : hand_->trick.size() != SeatsAtTable) return false;
    if (card == 0) EndTrick();
  }
  return true;
}

// A card is played once, by the seat that holds it, when it is the seat's turn, and it follows suit
// where the seat can.
bool Referee::TakeCard(int card) {
  if (hand_->trick.size() >= SeatsAtTable || hand_->isPlayed[card]) return false;
  const Integer seat = SeatAfter(hand_->leader, static_cast<int>(hand_->trick.size()));
  if (hand_->dealtTo[card] != seat) return false;
  const Integer led = hand_->trick.empty() ? Pack[card].Suit : Pack[hand_->trick[0]].Suit;
  for (int other = 1; other <= CardsInPack && Pack[card].Suit != led; ++other)
    if (Pack[other].Suit == led && hand_->dealtTo[other] == seat && !hand_->isPlayed[other])
      return false;
  hand_->isPlayed[card] = true;
  hand_->trick.push_back(card);
  return true;
}

void Referee::EndTrick() {
  const auto winning = std::ranges::max_element(
      hand_->trick, [](int best, int card) { return Beats(Pack[card], Pack[best]); });
  hand_->leader = SeatAfter(hand_->leader, static_cast<int>(winning - hand_->trick.begin()));
  ++hand_->tricksWon[hand_->leader];
  hand_->trick.clear();
}

void Referee::NoteScores() {
  const bool isGameOver = IsOpen("   Game Over");
  if (!hand_ || hand_->isScored || (!isGameOver && !IsOpen("   Scores"))) return;
  hand_->isScored = true;
  ++handsScored_;
  totals_.first += PointsFor(hand_->tricksWon[Player] + hand_->tricksWon[North],
                             hand_->bids[Player] + hand_->bids[North]);
  totals_.second += PointsFor(hand_->tricksWon[West] + hand_->tricksWon[East],
                              hand_->bids[West] + hand_->bids[East]);
  if (!isGameOver) return;
  isGameOver_ = true;
  ++gamesEnded_;
  statistics_.first += totals_.first > totals_.second ? 1 : 0;
  ++statistics_.second;
}

bool Referee::CardsAreInOnePlaceEach() const {
  if (!hand_ || !HandInProgress) return true;
  for (int card = 1; card <= CardsInPack; ++card)
    if (Pack[card].Owner != (hand_->isPlayed[card] ? NoSeat : hand_->dealtTo[card])) return false;
  return true;
}

bool Referee::TrickAndTurnAgreeWithList() const {
  if (!hand_) return PlayerTurn == False;
  const auto cardsPlayed = static_cast<int>(hand_->trick.size());
  if (PlayerTurn != False && SeatAfter(hand_->leader, cardsPlayed) != Player) return false;
  if (!HandInProgress) return true;
  for (int position = 1; position <= cardsPlayed; ++position) {
    const int card = hand_->trick[static_cast<std::size_t>(position - 1)];
    if (TrickCards[position] != card || TrickSuits[position] != Pack[card].Suit) return false;
  }
  return std::ranges::equal(TricksWon, hand_->tricksWon) &&
         (hand_->bids.empty() || std::ranges::equal(hand_->bids, Bids));
}

// A game that is over leaves its totals until its dialog has been answered; the dialog comes again
// when the player wants to leave and the game could not be saved.
bool Referee::TotalsAreTheSumOfHands() {
  const Pair now{OurPoints, TheirPoints};
  if (mayLoad_) totals_ = now;
  if (isGameOver_ && now == Pair{}) {
    totals_ = {};
    isGameOver_ = false;
  }
  return now == totals_ && (!isGameOver_ || hand_.has_value());
}

// They are erased on a yes only.
bool Referee::StatisticsChangeAtTheEndOfAGame() {
  const Pair now{GamesWon, GamesPlayed};
  const bool isErased = MFormDeluxe.Label3 == "   Delete statistics?" && MessageChoice == 0;
  if (isErased && !MFormDeluxe.Visible && now == Pair{}) statistics_ = {};
  return now == statistics_;
}

}  // namespace Parlino
