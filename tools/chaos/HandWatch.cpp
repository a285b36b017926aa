#include "tools/chaos/HandWatch.h"

#include <algorithm>
#include <utility>

#include "engine/RoundDriver.h"
#include "engine/state/Errors.h"
#include "engine/state/Questions.h"
#include "persistence/DataFiles.h"
#include "persistence/Records.h"
#include "platform/Platform.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr std::string_view PlayedMark = " played ";

// The card that a line of the list names, 0 for the line between two tricks. A name may hold
// anything, so the last mark of the line counts.
int CardOfLine(std::string_view line) {
  const std::size_t mark = line.rfind(PlayedMark);
  if (mark == std::string_view::npos) return 0;
  const std::string_view name = line.substr(mark + PlayedMark.size());
  const auto* card = std::ranges::find(Pack, name, &Card::FullName);
  return card == Pack.end() ? 0 : static_cast<int>(card - Pack.begin()) + 1;
}

bool Beats(const Card& card, const Card& best) {
  if (card.Suit == best.Suit) return card.Value > best.Value;
  return card.Suit == TrumpSuit;
}

Integer PointsFor(int tricks, int bid) {
  const int points = tricks < bid ? -10 * bid : 10 * bid + tricks - bid;
  return static_cast<Integer>(points);
}

bool IsOpen(std::string_view title) {
  return MFormDeluxe.Visible && MFormDeluxe.Label3 == title;
}

}  // namespace

void HandWatch::BeginProgram(bool nothingLost) {
  programBegins_ = true;
  nothingLost_ = nothingLost;
  isDealt_ = false;
  gameOver_ = false;
}

// The saved game is written when a game is over and by "Save and Exit", whose answer may also be an
// older one: the session of the desktop may have ended before it was given.
void HandWatch::EndProgram() {
  if (MFormDeluxe.Label3 == "   Scores" && MessageChoice == 1) perhapsSaved_ = totals_;
}

std::string_view HandWatch::Look() {
  if (!WhatIsKeptIsThere()) return "what is kept is there when the program begins again";
  if (HandInProgress && TrumpSuit < Diamonds) isDealt_ = false;
  if (HandInProgress && TrumpSuit >= Diamonds && !isDealt_) NoteDeal();
  if (isDealt_ && !isDealtWell_) return "thirteen cards for each seat, and what was loaded";
  if (isDealt_ && !ReadList()) return "the list tells a possible play";
  NoteScores();
  if (!CardsAreInOnePlaceEach()) return "each card is in one hand or has been played";
  if (!BidsAreKept()) return "a bid stands once the tricks have begun";
  if (!TrickAgreesWithList()) return "the trick is the one of the list";
  if (!TricksAreTheReferees()) return "each trick went to its highest card";
  if (!TurnIsTheHumans()) return "the human's turn is open only where South plays";
  if (!TotalsAreTheReferees()) return "totals are the sum of the hands scored";
  if (!StatisticsAreTheReferees()) return "statistics change at the end of a game only";
  if (!ScoresAreShown()) return "the status bar shows the totals";
  return {};
}

void HandWatch::ExpectLoad() {
  try {
    const std::string file = ThePlatform().ReadFile(SaveGameFile);
    RecordReader record(file);
    const Integer ours = record.TakeInteger();
    loaded_ = Pair{ours, record.TakeInteger()};
  } catch (const GameError&) {
    loaded_.reset();
  }
}

void HandWatch::NoteDeal() {
  isDealt_ = true;
  isScored_ = false;
  isDealtWell_ = !loaded_ || *loaded_ == totals_;
  for (Integer seat = Player; seat <= East; ++seat)
    isDealtWell_ = isDealtWell_ && HandOf(seat).Count() == CardsInSuit;
  loaded_.reset();
  bids_.clear();
  mayErase_ = false;
  ++handsDealt_;
  for (int card = 1; card <= CardsInPack; ++card) dealtTo_[card] = Pack[card].Owner;
  isPlayed_ = {};
  linesRead_ = 0;
  trick_.clear();
  leader_ = SeatAfter(Dealer);
  tricksWon_ = {};
}

bool HandWatch::ReadList() {
  const ListBox& list = Table.LstCardsPlayed;
  if (bids_.empty() && TrickNumber > 0) bids_.assign(Bids.begin(), Bids.end());
  if (list.Count() < linesRead_) return false;
  for (; linesRead_ < list.Count(); ++linesRead_) {
    const int card = CardOfLine(list.Line(linesRead_));
    if (card > 0 && !TakeCard(card)) return false;
    if (card == 0 && trick_.size() != SeatsAtTable) return false;
    if (card == 0) EndTrick();
  }
  return true;
}

// A card is played once, by the seat that holds it, when it is the seat's turn, and it follows suit
// where the seat can.
bool HandWatch::TakeCard(int card) {
  if (trick_.size() >= SeatsAtTable || isPlayed_[card]) return false;
  const Integer seat = SeatAfter(leader_, static_cast<int>(trick_.size()));
  if (dealtTo_[card] != seat) return false;
  if (!trick_.empty() && Pack[card].Suit != Pack[trick_[0]].Suit) {
    const Integer first = FirstCardOf(Pack[trick_[0]].Suit);
    for (int other = first; other < first + CardsInSuit; ++other)
      if (dealtTo_[other] == seat && !isPlayed_[other]) return false;
  }
  isPlayed_[card] = true;
  trick_.push_back(static_cast<Integer>(card));
  return true;
}

void HandWatch::EndTrick() {
  int winning = 0;
  for (int place = 1; place < SeatsAtTable; ++place)
    if (Beats(Pack[trick_[static_cast<std::size_t>(place)]],
              Pack[trick_[static_cast<std::size_t>(winning)]]))
      winning = place;
  leader_ = SeatAfter(leader_, winning);
  ++tricksWon_[leader_];
  trick_.clear();
}

void HandWatch::NoteScores() {
  const bool gameOver = IsOpen("   Game Over");
  if (isScored_ || !isDealt_ || (!gameOver && !IsOpen("   Scores"))) return;
  isScored_ = true;
  ++handsScored_;
  handScore_ = {PointsFor(tricksWon_[Player] + tricksWon_[North], bids_[Player] + bids_[North]),
                PointsFor(tricksWon_[West] + tricksWon_[East], bids_[West] + bids_[East])};
  totals_.ours = ToInteger(totals_.ours + handScore_.ours);
  totals_.theirs = ToInteger(totals_.theirs + handScore_.theirs);
  if (!gameOver) return;
  gameOver_ = true;
  ++gamesEnded_;
  kept_.savedTotals = {};
  kept_.savedInProgress = False;
  if (totals_.ours > totals_.theirs) ++kept_.statistics.ours;
  ++kept_.statistics.theirs;
}

bool HandWatch::CardsAreInOnePlaceEach() const {
  if (!isDealt_ || !HandInProgress) return true;
  for (int card = 1; card <= CardsInPack; ++card)
    if (Pack[card].Owner != (isPlayed_[card] ? NoSeat : dealtTo_[card])) return false;
  return true;
}

bool HandWatch::BidsAreKept() const {
  return !isDealt_ || bids_.empty() || !HandInProgress || std::ranges::equal(bids_, Bids);
}

bool HandWatch::TrickAgreesWithList() const {
  if (!isDealt_ || !HandInProgress) return true;
  for (int position = 1; position <= static_cast<int>(trick_.size()); ++position) {
    const Integer card = trick_[static_cast<std::size_t>(position - 1)];
    if (TrickCards[position] != card || TrickSuits[position] != Pack[card].Suit) return false;
  }
  return true;
}

bool HandWatch::TricksAreTheReferees() const {
  return !isDealt_ || !HandInProgress || std::ranges::equal(TricksWon, tricksWon_);
}

bool HandWatch::TurnIsTheHumans() const {
  if (PlayerTurn == False) return true;
  return isDealt_ && SeatAfter(leader_, static_cast<int>(trick_.size())) == Player;
}

// A game that is over leaves its totals until its dialog has been answered; the dialog comes again
// when the player wants to leave and the game could not be saved.
bool HandWatch::TotalsAreTheReferees() {
  const Pair now{OurPoints, TheirPoints};
  const bool gameEnds = gameOver_ && now == Pair{};
  if (loaded_ == now) {
    totals_ = now;
    loaded_.reset();
  }
  if (gameEnds) {
    totals_ = {};
    gameOver_ = false;
  }
  return now == totals_ && (!gameOver_ || isDealt_);
}

bool HandWatch::StatisticsAreTheReferees() {
  const Pair now{GamesWon, GamesPlayed};
  const bool isErasing = MFormDeluxe.Label3 == "   Delete statistics?" && MessageChoice == 0;
  if (mayErase_ && isErasing && now == Pair{}) {
    kept_.statistics = {};
    mayErase_ = false;
  }
  return now == kept_.statistics;
}

// Names and the wish may change at any time; what counts is how they come back.
bool HandWatch::WhatIsKeptIsThere() {
  const Kept before = kept_;
  kept_.names.assign(SeatNames.begin(), SeatNames.end());
  kept_.hideWelcome = HideWelcome;
  if (!std::exchange(programBegins_, false)) return true;
  kept_.statistics = {GamesWon, GamesPlayed};
  totals_ = kept_.savedTotals = {OurPoints, TheirPoints};
  kept_.savedInProgress = GameInProgress;
  Kept saved = before;
  saved.savedInProgress = True;
  saved.savedTotals = perhapsSaved_.value_or(Pair{});
  const bool isSaved = std::exchange(perhapsSaved_, {}).has_value() && kept_ == saved;
  return !nothingLost_ || isSaved || kept_ == before;
}

bool HandWatch::ScoresAreShown() const {
  if (!IsOpen("   Scores")) return true;
  return Table.StatusBar1[2].Caption == JoinText({"Your team points:- ", totals_.ours}) &&
         Table.StatusBar1[3].Caption == JoinText({"Their team points:- ", totals_.theirs});
}

}  // namespace Parlino
