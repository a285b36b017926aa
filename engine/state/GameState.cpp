#include "engine/state/GameState.h"

#include "engine/state/ErrorReport.h"

namespace Parlino {
namespace {

// Every name ends in two blanks, and those of King and Ace have two more before "of". The list of
// cards played shows them as they are.
constexpr Indexed<std::string_view, 2, 14> RankNames = [] {
  Indexed<std::string_view, 2, 14> names;
  int value = 2;
  for (const std::string_view name :
       {"Two of  ", "Three of  ", "Four of  ", "Five of  ", "Six of  ", "Seven of  ", "Eight of  ",
        "Nine of  ", "Ten of  ", "Jack of  ", "Queen of  ", "King  of  ", "Ace  of  "})
    names[value++] = name;
  return names;
}();

}  // namespace

std::string_view SuitNameOf(int suit) {
  static constexpr std::string_view names[] = {"Diamonds", "Clubs", "Hearts", "Spades"};
  return names[suit - Diamonds];
}

void SetItUp() {
  ReportErrors("SetItUp", [] {
    for (int suit = Diamonds; suit <= Spades; ++suit) {
      for (int value = 2; value <= Ace; ++value) {
        Card& card = Pack[CardNumber(value, suit)];
        card.RankName = RankNames[value];
        card.SuitName = SuitNameOf(suit);
        card.FullName = card.RankName + card.SuitName;
        card.Suit = ToInteger(suit);
        card.Value = ToInteger(value);
        card.Owner = NoSeat;
      }
    }
    PauseMs = DefaultPauseMs;
  });
}

void ResetGameState() {
  Pack = {};
  DiamondsTotal = ClubsTotal = SpadesTotal = HeartsTotal = 0;
  PlayerName.clear();
  SeatNames = {};
  Dealer = Leader = TrumpSuit = 0;
  Bids = {};
  HandInProgress = false;
  OurBid = TheirBid = 0;
  TrickNumber = TrickWinner = 0;
  TrickCards = TrickSuits = TrickSeats = {};
  TricksWon = {};
  PlayerTurn = PlayerHasPlayed = GameInProgress = HideWelcome = False;
  OurPoints = TheirPoints = OurHandScore = TheirHandScore = 0;
  GamesWon = GamesPlayed = 0;
  DefaultPauseMs = PauseMs = 0;
  PauseStartTicks = 0;
  MessageChoice = 0;
}

}  // namespace Parlino
