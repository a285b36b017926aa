#include "tools/chaos/TableRules.h"

#include <algorithm>
#include <array>
#include <string>

#include "engine/RoundDriver.h"
#include "engine/state/GameState.h"
#include "engine/state/Questions.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

int CardsOfSeat(Integer seat) {
  return HandOf(seat).Count();
}

bool HandsAreEven() {
  if (!HandInProgress) return true;
  int fewest = CardsInSuit;
  int most = 0;
  for (Integer seat = Player; seat <= East; ++seat) {
    fewest = std::min(fewest, CardsOfSeat(seat));
    most = std::max(most, CardsOfSeat(seat));
  }
  return most - fewest <= 1;
}

bool OwnersAreSeats() {
  for (const Card& card : Pack)
    if (card.Owner != NoSeat && (card.Owner < Player || card.Owner > East)) return false;
  return true;
}

int TricksWonByAll() {
  return TricksWon[Player] + TricksWon[West] + TricksWon[North] + TricksWon[East];
}

// Between two tricks the counts agree; within a trick one has not been counted yet.
bool TricksAddUp() {
  const int played = TrickNumber;
  return TricksWonByAll() == played || TricksWonByAll() == played - 1;
}

// The counter of a pile is raised before its picture is shown, while the trick is moved off.
bool PilesShowTricks() {
  const std::array<const TrickPile*, SeatsAtTable> piles = {
      &Table.ImgBackP, &Table.ImgBackWest, &Table.ImgBackNorth, &Table.ImgBackEast};
  int missing = 0;
  for (int seat = Player; seat <= East; ++seat) {
    int shown = 0;
    for (const Control& picture : *piles[static_cast<std::size_t>(seat)]) shown += picture.Visible;
    if (shown > TricksWon[seat]) return false;
    missing += TricksWon[seat] - shown;
  }
  return missing <= 1;
}

bool IsNumber(const Label& label, int number) {
  return label.Caption == std::to_string(number);
}

bool CaptionsTellTricks() {
  return IsNumber(Table.LblPTricks, TricksWon[Player]) &&
         IsNumber(Table.LblWTricks, TricksWon[West]) &&
         IsNumber(Table.LblNTricks, TricksWon[North]) &&
         IsNumber(Table.LblETricks, TricksWon[East]) &&
         IsNumber(Table.LblPNMade, TricksWon[Player] + TricksWon[North]) &&
         IsNumber(Table.LblWEMade, TricksWon[West] + TricksWon[East]);
}

// A bid is made before it is written on the table; once the tricks begin all are there.
bool CaptionsTellBids() {
  const Label* const labels[] = {&Table.LblPBid, &Table.LblWBid, &Table.LblNBid, &Table.LblEBid};
  for (int seat = Player; seat <= East; ++seat)
    if (!IsNumber(*labels[seat], Bids[seat]) && (TrickNumber > 0 || !IsNumber(*labels[seat], 0)))
      return false;
  return TrickNumber == 0 ||
         (OurBid == Bids[Player] + Bids[North] && TheirBid == Bids[West] + Bids[East] &&
          IsNumber(Table.LblPNBid, OurBid) && IsNumber(Table.LblWEBid, TheirBid));
}

bool TrumpsAreShown() {
  if (TrumpSuit < Diamonds) return true;
  constexpr Integer pictures[] = {PictureDiamonds, PictureClubs, PictureHearts, PictureSpades};
  return Table.imgtrumps.Visible && Table.imgtrumps.Picture == pictures[TrumpSuit - Diamonds];
}

bool PlayersCardsShowFaces() {
  for (const Integer card : HandOf(Player)) {
    const PictureBox& picture = Table.Cds[card];
    if (TrumpSuit > 0 && (picture.Picture != card || !picture.Visible)) return false;
  }
  return true;
}

bool RobotsCardsShowBacks() {
  for (Integer seat = West; seat <= East; ++seat) {
    int faces = 0;
    for (const Integer card : HandOf(seat)) faces += Table.Cds[card].Picture == card;
    if (faces > 1) return false;  // one, while it is being played
  }
  return true;
}

bool BiddingIsOpenOnlyForABid() {
  return !Table.FramBids.Visible ||
         (HandInProgress && TrumpSuit >= Diamonds && TrickNumber == 0 && Bids[Player] == 0);
}

bool TurnIsOpenOnlyInAHand() {
  return PlayerTurn == False || HandInProgress;
}

}  // namespace

std::string_view BrokenTableRule() {
  static constexpr struct {
    std::string_view name;
    bool (*holds)();
  } rules[] = {
      {"every owner is a seat or nobody", OwnersAreSeats},
      {"hands differ by one card at the most", HandsAreEven},
      {"tricks won add up to the tricks played", TricksAddUp},
      {"trick piles show the tricks won", PilesShowTricks},
      {"trick captions tell the tricks won", CaptionsTellTricks},
      {"bids on the table are those made", CaptionsTellBids},
      {"the trump picture shows the trump suit", TrumpsAreShown},
      {"the Player's cards show their faces", PlayersCardsShowFaces},
      {"the robots' cards show their backs", RobotsCardsShowBacks},
      {"the bidding panel is open only for a bid", BiddingIsOpenOnlyForABid},
      {"the human's turn is open only in a hand", TurnIsOpenOnlyInAHand},
  };
  for (const auto& rule : rules)
    if (!rule.holds()) return rule.name;
  return {};
}

}  // namespace Parlino
