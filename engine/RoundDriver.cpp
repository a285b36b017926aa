#include "engine/RoundDriver.h"

#include "engine/Deal.h"
#include "engine/Generator.h"
#include "engine/TrickFlow.h"
#include "robots/Bidding.h"
#include "table/CardDisplay.h"
#include "table/ErrorReport.h"

namespace Parlino {
namespace {

constexpr Integer BidPauseMs = 2500;

bool handUnderWay = false;

class HandMark {
 public:
  HandMark() { handUnderWay = true; }
  HandMark(const HandMark&) = delete;
  HandMark& operator=(const HandMark&) = delete;
  ~HandMark() { handUnderWay = false; }
};

Label& BidLabelOf(Integer seat) {
  Label* const labels[SeatsAtTable] = {&Table.LblPBid, &Table.LblWBid, &Table.LblNBid,
                                       &Table.LblEBid};
  return *labels[seat];
}

const std::string& NameOf(Integer seat) {
  return seat == Player ? PlayerName : SeatNames[seat];
}

void ReplaceGreetingsByNames() {
  for (Integer seat = Player; seat <= East; ++seat) SetCaption(Table.LblName[seat], {NameOf(seat)});
}

void MakeTableReady() {
  Show(Table.Shape1);
  Show(Table.FramScores);
  Hide(Table.CmdDontShow);
  Hide(Table.LblIntro);
  Hide(Table.lblTitle);
  Hide(Table.imgtrumps);
  Show(Table.LblInfo);  // the last note of the hand before has hidden it
}

void AskHumanForBid() {
  SetCaption(Table.LblInfo, {PlayerName, " please make your bid"});
  Show(Table.FramBids);
  while (Bids[Player] < 1) WaitForEvents();
}

void MakeRobotBid(Integer seat) {
  SetCaption(Table.LblInfo, {SeatNames[seat], " deciding what to bid"});
  Bids[seat] = GetBid(seat);
}

void CollectBid(Integer seat) {
  if (seat == Player)
    AskHumanForBid();
  else
    MakeRobotBid(seat);
  SetCaption(Table.LblName[seat], {NameOf(seat), " bids ", Bids[seat]});
  SetCaption(BidLabelOf(seat), {Bids[seat]});
  StartSound(RingSound);
  WaitMs();
}

void CollectBids() {
  PauseMs = BidPauseMs;
  Leader = SeatAfter(Dealer);
  for (int place = 1; place <= SeatsAtTable; ++place) CollectBid(SeatAfter(Dealer, place));
  OurBid = ToInteger(Bids[Player] + Bids[North]);
  TheirBid = ToInteger(Bids[West] + Bids[East]);
  SetCaption(Table.LblPNBid, {OurBid});
  SetCaption(Table.LblWEBid, {TheirBid});
  PauseMs = DefaultPauseMs;
}

void DealAndPlayHand() {
  ReplaceGreetingsByNames();
  MakeTableReady();
  TrumpSuit = -1;
  ClearTable();
  PlacePackDeal();
  GetDealer();
  SetCaption(Table.LblInfo, {NameOf(Dealer), " is dealing. "});
  DealCards();
  CollectBids();
  LeadNextTrick(Leader);
}

// A hand that stopped in the middle must not leave the human's turn or the bidding open behind it.
void CloseHumansTurn() {
  Hide(Table.FramBids);
  PlayerTurn = False;
  PlayerHasPlayed = False;
}

}  // namespace

void MnuNew_Click() {
  DealNewRound();
}

void DealNewRound() {
  if (handUnderWay) throw HandAbandoned{};
  const HandMark mark;
  bool handWanted = true;
  while (handWanted) {
    try {
      handWanted = ReportErrors("DealNewRound", [] {
        DealAndPlayHand();
        return true;  // every other answer has ended the program
      });
      if (!handWanted && TrickNumber == TricksInHand) TellHandIsOver();
    } catch (const HandAbandoned&) {
      handWanted = true;
    }
    CloseHumansTurn();
  }
}

void GetDealer() {
  ReportErrors("GetDealer", [] {
    if (GameInProgress == True) {
      Dealer = SeatAfter(Dealer);
    } else {
      MixClockIntoGenerator();
      Dealer = static_cast<Integer>(NextRandom() * SeatsAtTable);
    }
    Leader = SeatAfter(Dealer);
  });
}

void ClearTable() {
  for (Label* counter :
       {&Table.LblPNMade, &Table.LblPNBid, &Table.LblWEMade, &Table.LblWEBid, &Table.LblWBid,
        &Table.LblNBid, &Table.LblEBid, &Table.LblPBid, &Table.LblNTricks, &Table.LblWTricks,
        &Table.LblETricks, &Table.LblPTricks})
    SetCaption(*counter, {0});
  for (int place = 1; place <= TricksInHand; ++place) {
    Hide(Table.ImgBackNorth[place]);
    Hide(Table.ImgBackWest[place]);
    Hide(Table.ImgBackEast[place]);
    Hide(Table.ImgBackP[place]);
  }
  SetCaption(Table.LblInfo, {});
  ClearLines(Table.LstCardsPlayed);
  TrickNumber = 0;
  TricksWon = {};
  Bids = {};
  for (int card = 1; card <= CardsInPack; ++card) {
    Pack[card].Owner = NoSeat;
    Show(Table.Cds[card]);
  }
  SetCaption(Table.LblTrumps, {"Trumps"});
  Hide(Table.imgtrumps);
  TrickWinner = -1;
}

void LblBids_Click(Integer tricks) {
  Bids[Player] = tricks;
  Hide(Table.FramBids);
}

bool HandIsUnderWay() {
  return handUnderWay;
}

}  // namespace Parlino
