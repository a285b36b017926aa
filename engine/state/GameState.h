// The game state: the pack and every variable that the engine, the robots, the data files and the
// table share. There is only one game, so these are plain variables; each group says who writes it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/state/CardSet.h"
#include "engine/state/Indexed.h"

namespace Parlino {

// A flag is one of the game's integers; True is -1.
using Flag = std::int16_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;

// Seats in table order; the next seat is SeatAfter(seat). Player and North are partners.
inline constexpr Integer Player = 0;
inline constexpr Integer West = 1;
inline constexpr Integer North = 2;
inline constexpr Integer East = 3;
inline constexpr Integer NoSeat = 9;  // the owner of a card that is in no hand

inline constexpr Integer Diamonds = 4;
inline constexpr Integer Clubs = 5;
inline constexpr Integer Hearts = 6;
inline constexpr Integer Spades = 7;

inline constexpr Integer Jack = 11;
inline constexpr Integer Queen = 12;
inline constexpr Integer King = 13;
inline constexpr Integer Ace = 14;

inline constexpr int CardsInPack = 52;
inline constexpr int CardsInSuit = 13;
inline constexpr int TricksInHand = 13;
inline constexpr int SeatsAtTable = 4;
inline constexpr int TargetPoints = 300;

struct Card {
  std::string FullName;  // RankName and SuitName, as the list of cards played shows it
  std::string SuitName;
  Integer Suit = 0;   // 4 Diamonds .. 7 Spades
  Integer Value = 0;  // 2..14, the Ace highest
  Integer Owner = 0;  // the seat that holds the card, or NoSeat
  std::string RankName;
};

// Pack and hands. A hand is the set of cards whose Owner is the seat: there is no other list of it.
// Card numbers run through the Diamonds, Clubs, Hearts and Spades from the Two to the Ace, so that
// within a suit a higher number is a higher card.
inline Indexed<Card, 1, CardsInPack> Pack;
inline Integer DiamondsTotal;  // the four totals: written by SuitTotals for the seat last counted
inline Integer ClubsTotal;
inline Integer SpadesTotal;
inline Integer HeartsTotal;

// Names. Written at start-up and by the name commands; SeatNames[0] is a copy of PlayerName.
inline std::string PlayerName;
inline Indexed<std::string, 0, 3> SeatNames;

// Hand and bidding. Written by the round driver and the deal.
inline Integer Dealer;
inline Integer Leader;     // leads the trick to be played; trick flow passes it to each winner
inline Integer TrumpSuit;  // a suit, or -1 until the deal has ended
inline Indexed<Integer, 0, 3> Bids;  // 1..13 once the seat has bid, 0 before
inline bool HandInProgress;          // from the clearing of the table to the end of the hand
inline Integer OurBid;
inline Integer TheirBid;

// Trick in play. The four positions are written as the cards are played and never cleared.
inline Integer TrickNumber;  // 1..13; 0 before the first trick
inline Indexed<Integer, 1, 4> TrickCards;
inline Indexed<Integer, 1, 4> TrickSuits;
inline constexpr Integer& LedSuit = TrickSuits[1];
inline Indexed<Integer, 1, 4> TrickSeats;
inline Integer TrickWinner;  // -1 at the start of a hand
inline Indexed<Integer, 0, 3> TricksWon;
inline Flag PlayerTurn;       // the human may play a card now
inline Flag PlayerHasPlayed;  // the human's card of this turn is on the table

// Game, statistics and settings. Written by scoring and the data files.
inline Flag GameInProgress;
inline Integer OurPoints;
inline Integer TheirPoints;
inline Integer OurHandScore;  // the points that each team made in the hand last scored
inline Integer TheirHandScore;
inline Integer GamesWon;
inline Integer GamesPlayed;
inline Flag HideWelcome;

// Pauses, in milliseconds. PauseMs is the length of the next pause. PauseStartTicks is the tick at
// which the last one began, kept so that pauses can be observed from outside.
inline Integer DefaultPauseMs;
inline Integer PauseMs;
inline std::int32_t PauseStartTicks;

// The number of the button chosen in the message dialog: 0, 1 or 2.
inline Integer MessageChoice;

// Resets every variable above to zero, False or empty, as at the start of the program.
void ResetGameState();

// Fills the pack, with every card in no hand, and sets PauseMs to DefaultPauseMs.
void SetItUp();

inline constexpr Integer SeatAfter(int seat, int places = 1) {
  return static_cast<Integer>((seat + places) % SeatsAtTable);
}

inline constexpr bool IsSuit(int suit) {
  return suit >= Diamonds && suit <= Spades;
}

inline constexpr Integer FirstCardOf(int suit) {
  return static_cast<Integer>(CardsInSuit * (suit - Diamonds) + 1);
}

inline constexpr Integer CardNumber(int value, int suit) {
  return static_cast<Integer>(FirstCardOf(suit) + value - 2);
}

// Whether the seat holds the card of this value and suit; for NoSeat, whether it is in no hand.
// False if the value is not 2..14 or the suit not 4..7.
inline bool HoldsCard(Integer seat, int value, int suit) {
  return IsSuit(suit) && value >= 2 && value <= Ace && Pack[CardNumber(value, suit)].Owner == seat;
}

// The seat's cards of one suit, found by going through the pack. Empty for a number that is not a
// suit, such as TrumpSuit before the deal has ended.
inline CardSet HandOf(Integer seat, Integer suit) {
  if (!IsSuit(suit)) return {};
  const Integer first = FirstCardOf(suit);
  const Card* cards = &Pack[first];  // one check of the number for the whole suit
  return CardSet::OfSuit(first, [=](int card) { return cards[card - first].Owner == seat; });
}

// The whole hand of the seat.
inline CardSet HandOf(Integer seat) {
  return HandOf(seat, Diamonds) | HandOf(seat, Clubs) | HandOf(seat, Hearts) | HandOf(seat, Spades);
}

// The cards of all hands.
inline CardSet CardsInHands() {
  return CardSet::OfPack([](int card) { return Pack[card].Owner != NoSeat; });
}

// "Diamonds".."Spades" for a suit 4..7.
std::string_view SuitNameOf(int suit);

}  // namespace Parlino
