#include "tests/chaos/Referee.h"

#include <algorithm>

#include "engine/state/Errors.h"
#include "engine/state/Questions.h"
#include "persistence/DataFiles.h"
#include "persistence/Records.h"
#include "platform/Platform.h"
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

void Referee::BeginProgram() {
  programBegins_ = true;
  isDealt_ = isGameOver_ = mayErase_ = false;
  loaded_.reset();
}

std::string_view Referee::Look() {
  if (std::exchange(programBegins_, false)) {
    totals_ = {OurPoints, TheirPoints};
    statistics_ = {GamesWon, GamesPlayed};
  }
  if (HandInProgress && TrumpSuit < Diamonds) isDealt_ = false;
  if (!DealIsGood()) return "thirteen cards for each seat, and what was loaded";
  if (isDealt_ && !ListTellsAPossiblePlay()) return "the list tells a possible play";
  NoteScores();
  if (!CardsAreInOnePlaceEach()) return "each card is in one hand or has been played";
  if (!TrickAndTurnAgreeWithList()) return "bids, trick, turn and tricks won agree with the list";
  if (!TotalsAreTheSumOfHands()) return "totals are the sum of the hands scored, and shown";
  if (!StatisticsChangeAtTheEndOfAGame()) return "statistics change at the end of a game only";
  return {};
}

void Referee::ExpectLoad() {
  loaded_.reset();
  try {
    const std::string file = ThePlatform().ReadFile(SaveGameFile);
    RecordReader record(file);
    const int ours = record.TakeInteger();
    loaded_ = Pair(ours, record.TakeInteger());
  } catch (const GameError&) {
    // the totals stay as they are
  }
}

bool Referee::DealIsGood() {
  if (isDealt_ || !HandInProgress || TrumpSuit < Diamonds) return true;
  isDealt_ = true;
  isScored_ = mayErase_ = false;
  bids_.clear();
  trick_.clear();
  isPlayed_ = {};
  tricksWon_ = {};
  linesRead_ = 0;
  leader_ = SeatAfter(Dealer);
  ++handsDealt_;
  for (int card = 1; card <= CardsInPack; ++card) dealtTo_[card] = Pack[card].Owner;
  bool isGood = !loaded_ || *loaded_ == totals_;
  for (Integer seat = Player; seat <= East; ++seat)
    isGood = isGood && HandOf(seat).Count() == CardsInSuit;
  loaded_.reset();
  return isGood;
}

bool Referee::ListTellsAPossiblePlay() {
  const ListBox& list = Table.LstCardsPlayed;
  if (bids_.empty() && TrickNumber > 0) bids_.assign(Bids.begin(), Bids.end());
  if (list.Count() < linesRead_) return false;
  for (; linesRead_ < list.Count(); ++linesRead_) {
    const int card = CardOfLine(list.Line(linesRead_));
    if (card > 0 ? !TakeCard(card) : trick_.size() != SeatsAtTable) return false;
    if (card == 0) EndTrick();
  }
  return true;
}

// A card is played once, by the seat that holds it, when it is the seat's turn, and it follows suit
// where the seat can.
bool Referee::TakeCard(int card) {
  if (trick_.size() >= SeatsAtTable || isPlayed_[card]) return false;
  const Integer seat = SeatAfter(leader_, static_cast<int>(trick_.size()));
  if (dealtTo_[card] != seat) return false;
  const Integer led = trick_.empty() ? Pack[card].Suit : Pack[trick_[0]].Suit;
  for (int other = 1; other <= CardsInPack && Pack[card].Suit != led; ++other)
    if (Pack[other].Suit == led && dealtTo_[other] == seat && !isPlayed_[other]) return false;
  isPlayed_[card] = true;
  trick_.push_back(card);
  return true;
}

void Referee::EndTrick() {
  const auto winning = std::ranges::max_element(
      trick_, [](int best, int card) { return Beats(Pack[card], Pack[best]); });
  leader_ = SeatAfter(leader_, static_cast<int>(winning - trick_.begin()));
  ++tricksWon_[leader_];
  trick_.clear();
}

void Referee::NoteScores() {
  const bool isGameOver = IsOpen("   Game Over");
  if (isScored_ || !isDealt_ || (!isGameOver && !IsOpen("   Scores"))) return;
  isScored_ = true;
  ++handsScored_;
  totals_.first += PointsFor(tricksWon_[Player] + tricksWon_[North], bids_[Player] + bids_[North]);
  totals_.second += PointsFor(tricksWon_[West] + tricksWon_[East], bids_[West] + bids_[East]);
  if (!isGameOver) return;
  isGameOver_ = true;
  ++gamesEnded_;
  statistics_.first += totals_.first > totals_.second ? 1 : 0;
  ++statistics_.second;
}

bool Referee::CardsAreInOnePlaceEach() const {
  if (!isDealt_ || !HandInProgress) return true;
  for (int card = 1; card <= CardsInPack; ++card)
    if (Pack[card].Owner != (isPlayed_[card] ? NoSeat : dealtTo_[card])) return false;
  return true;
}

bool Referee::TrickAndTurnAgreeWithList() const {
  const auto cardsPlayed = static_cast<int>(trick_.size());
  if (PlayerTurn != False && (!isDealt_ || SeatAfter(leader_, cardsPlayed) != Player)) return false;
  if (!isDealt_ || !HandInProgress) return true;
  for (int position = 1; position <= cardsPlayed; ++position) {
    const int card = trick_[static_cast<std::size_t>(position - 1)];
    if (TrickCards[position] != card || TrickSuits[position] != Pack[card].Suit) return false;
  }
  return std::ranges::equal(TricksWon, tricksWon_) &&
         (bids_.empty() || std::ranges::equal(bids_, Bids));
}

// A game that is over leaves its totals until its dialog has been answered; the dialog comes again
// when the player wants to leave and the game could not be saved.
bool Referee::TotalsAreTheSumOfHands() {
  const Pair now{OurPoints, TheirPoints};
  if (loaded_ == now) {
    totals_ = now;
    loaded_.reset();
  }
  if (isGameOver_ && now == Pair{}) {
    totals_ = {};
    isGameOver_ = false;
  }
  if (IsOpen("   Scores") &&
      (Table.StatusBar1[2].Caption != JoinText({"Your team points:- ", totals_.first}) ||
       Table.StatusBar1[3].Caption != JoinText({"Their team points:- ", totals_.second})))
    return false;
  return now == totals_ && (!isGameOver_ || isDealt_);
}

bool Referee::StatisticsChangeAtTheEndOfAGame() {
  const Pair now{GamesWon, GamesPlayed};
  const bool isErased = MFormDeluxe.Label3 == "   Delete statistics?" && MessageChoice == 0;
  if (mayErase_ && isErased && now == Pair{}) {
    statistics_ = {};
    mayErase_ = false;
  }
  return now == statistics_;
}

}  // namespace Parlino
