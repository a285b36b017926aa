#include "tests/chaos/TableRules.h"

#include <algorithm>
#include <string>

#include "engine/state/GameState.h"
#include "engine/state/Questions.h"
#include "table/SeatControls.h"

namespace Parlino {
namespace {

bool Shows(const Label& label, int number) {
  return label.Caption == std::to_string(number);
}

// The counter of a pile is raised before its picture is shown, while the trick is moved off.
bool PilesShowTricks() {
  int missing = 0;
  for (int seat = Player; seat <= East; ++seat) {
    int shown = 0;
    for (const Control& picture : *PileOf[seat]) shown += picture.Visible;
    if (shown > TricksWon[seat]) return false;
    missing += TricksWon[seat] - shown;
  }
  return missing <= 1;
}

bool CaptionsTellTricks() {
  for (int seat = Player; seat <= East; ++seat)
    if (!Shows(CountsInFrame[seat].tricks, TricksWon[seat])) return false;
  return Shows(Table.LblPNMade, OurTricks()) && Shows(Table.LblWEMade, TheirTricks());
}

// A bid is made before it is written on the table; once the tricks begin all are there.
bool CaptionsTellBids() {
  for (int seat = Player; seat <= East; ++seat) {
    const Label& label = CountsInFrame[seat].bid;
    if (!Shows(label, Bids[seat]) && (TrickNumber > 0 || !Shows(label, 0))) return false;
  }
  return TrickNumber == 0 || (Shows(Table.LblPNBid, Bids[Player] + Bids[North]) &&
                              Shows(Table.LblWEBid, Bids[West] + Bids[East]));
}

bool TrumpsAreShown() {
  if (TrumpSuit < Diamonds) return true;
  constexpr Integer pictures[] = {PictureDiamonds, PictureClubs, PictureHearts, PictureSpades};
  return Table.imgtrumps.Visible && Table.imgtrumps.Picture == pictures[TrumpSuit - Diamonds];
}

// A robot shows the face of one card at the most, while it is being played.
bool OnlyTheHumanSeesFaces() {
  for (Integer seat = Player; seat <= East; ++seat) {
    int faces = 0;
    for (const Integer card : HandOf(seat))
      faces += Table.Cds[card].Picture == card && Table.Cds[card].Visible;
    if (seat == Player ? TrumpSuit > 0 && faces < HandOf(seat).Count() : faces > 1) return false;
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
      {"trick piles show the tricks won", PilesShowTricks},
      {"trick captions tell the tricks won", CaptionsTellTricks},
      {"bids on the table are those made", CaptionsTellBids},
      {"the trump picture shows the trump suit", TrumpsAreShown},
      {"the Player's cards show faces and the robots' backs", OnlyTheHumanSeesFaces},
      {"the bidding panel is open only for a bid", BiddingIsOpenOnlyForABid},
      {"the human's turn is open only in a hand", TurnIsOpenOnlyInAHand},
  };
  for (const auto& rule : rules)
    if (!rule.holds()) return rule.name;
  return {};
}

}  // namespace Parlino
