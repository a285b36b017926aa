#include "engine/Deal.h"

#include <cmath>

#include "engine/Generator.h"
#include "engine/state/ErrorReport.h"
#include "table/CardDisplay.h"

namespace Parlino {
namespace {

constexpr Integer DealPauseMs = 25;

struct Trumps {
  Integer suit;
  Integer picture;
};

constexpr Trumps TrumpsByDealer[SeatsAtTable] = {{Hearts, PictureHearts},
                                                 {Diamonds, PictureDiamonds},
                                                 {Clubs, PictureClubs},
                                                 {Spades, PictureSpades}};

void DrawCardFor(Integer seat) {
  PauseMs = DealPauseMs;
  const Integer card = GetSingleCard();
  Pack[card].Owner = seat;
  MoveDealtCard(card, seat);
}

constexpr void (*DealTo[SeatsAtTable])() = {DealToPlayer, DealToWest, DealToNorth, DealToEast};

}  // namespace

// Rounding to the nearest whole number gives 0 and 52 half the chance of the other numbers, so the
// Ace of Spades tends to be dealt late. Players are used to that, so it stays.
Integer GetSingleCard() {
  return ReportErrors("GetSingleCard", [] {
    while (true) {
      MixClockIntoGenerator();
      const auto card = static_cast<int>(std::lrint(NextRandom() * CardsInPack));
      if (card != 0 && Pack[card].Owner == NoSeat) return static_cast<Integer>(card);
    }
  });
}

void DealCards() {
  ReportErrors("DealCards", [] {
    GameInProgress = True;
    StartSound(ShuffleSound);
    const Integer dealer = Dealer;
    for (int round = 1; round <= CardsInSuit; ++round)
      for (int place = 1; place <= SeatsAtTable; ++place) DealTo[SeatAfter(dealer, place)]();
    DisplayTrumps();
  });
}

// The Player hears a card before it is sorted into the hand; a robot's card is sorted first.
void DealToPlayer() {
  DrawCardFor(Player);
  PlayCardSound();
  ShowPlayerHand();
}

void DealToWest() {
  DrawCardFor(West);
  ShowWestHand();
  PlayCardSound();
}

void DealToNorth() {
  DrawCardFor(North);
  ShowNorthHand();
  PlayCardSound();
}

void DealToEast() {
  DrawCardFor(East);
  ShowEastHand();
  PlayCardSound();
}

void DisplayTrumps() {
  ReportErrors("DisplayTrumps", [] {
    const Trumps& trumps = TrumpsByDealer[Dealer];
    Show(Table.LblTrumps);
    SetPicture(Table.imgtrumps, trumps.picture);
    Show(Table.imgtrumps);
    TrumpSuit = trumps.suit;
    const Integer firstBidder = SeatAfter(Dealer);
    if (firstBidder == Player)
      SetCaption(Table.LblInfo, {PlayerName, " you will bid first"});
    else
      SetCaption(Table.LblInfo, {SeatNames[firstBidder], " will bid first"});
  });
}

}  // namespace Parlino
