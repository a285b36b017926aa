// What must hold at every chance to process events, each rule under a name of its own.
#include <algorithm>
#include <array>
#include <string>

#include "engine/RoundDriver.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

int CardsOfSeat(Integer seat) {
  return HandOf(seat).Count();
}

bool HandsAreEven() {
  if (!HandIsUnderWay()) return true;
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

bool CaptionsTellTricks() {
  return Table.LblPTricks.Caption == std::to_string(TricksWon[Player]) &&
         Table.LblWTricks.Caption == std::to_string(TricksWon[West]) &&
         Table.LblNTricks.Caption == std::to_string(TricksWon[North]) &&
         Table.LblETricks.Caption == std::to_string(TricksWon[East]) &&
         Table.LblPNMade.Caption == std::to_string(TricksWon[Player] + TricksWon[North]) &&
         Table.LblWEMade.Caption == std::to_string(TricksWon[West] + TricksWon[East]);
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
  return !Table.FramBids.Visible || Bids[Player] == 0;
}

bool TurnIsOpenOnlyInAHand() {
  return PlayerTurn == False || HandIsUnderWay();
}

}  // namespace

std::string BrokenInvariant() {
  const struct {
    const char* name;
    bool (*holds)();
  } rules[] = {
      {"every owner is a seat or nobody", OwnersAreSeats},
      {"hands differ by one card at the most", HandsAreEven},
      {"tricks won add up to the tricks played", TricksAddUp},
      {"trick piles show the tricks won", PilesShowTricks},
      {"trick captions tell the tricks won", CaptionsTellTricks},
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
