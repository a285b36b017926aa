#include "engine/RoundDriver.h"

#include "engine/Deal.h"
#include "engine/Generator.h"
#include "engine/TrickFlow.h"
#include "engine/state/ErrorReport.h"
#include "engine/state/Questions.h"
#include "robots/Bidding.h"
#include "table/CardDisplay.h"
#include "table/SeatControls.h"

namespace Parlino {
namespace {

constexpr Integer BidPauseMs = 2500;

class HandMark {
 public:
  HandMark() { HandInProgress = true; }
  HandMark(const HandMark&) = delete;
  HandMark& operator=(const HandMark&) = delete;
  ~HandMark() { HandInProgress = false; }
};

void ReplaceGreetingsByNames() {
  for (Integer seat = Player; seat <= East; ++seat) SetCaption(Table.LblName[seat], {NameOf(seat)});
}

void MakeTableReady() {
  Show(Table.Shape1);
  Show(Table.FramScores);
  Hide(Table.CmdDontShow);
  Hide(Table.LblIntro);
  Hide(Table.lblTitle);
  Show(Table.LblInfo);  // hidden by the last note of the previous hand
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
  SetCaption(CountsInFrame[seat].bid, {Bids[seat]});
  StartSound(RingSound);
  WaitMs();
}

void CollectBids() {
  PauseMs = BidPauseMs;
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

// A hand that is cut short must not leave the human's turn or the bidding panel open.
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
  if (HandInProgress) throw HandAbandoned{};
  const HandMark mark;
  bool handWanted = true;
  while (handWanted) {
    try {
      handWanted = ReportErrors("DealNewRound", [] {
        DealAndPlayHand();
        return true;  // any other answer ends the program
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
      Dealer = ToInteger(DealGenerator.NextBelow(SeatsAtTable));
    }
    Leader = SeatAfter(Dealer);
  });
}

void ClearTable() {
  for (const auto& [bid, tricks] : CountsInFrame)
    for (Label* count : {&bid, &tricks}) SetCaption(*count, {0});
  for (Integer seat = Player; seat <= East; ++seat)
    for (Control& back : *PileOf[seat]) Hide(back);
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

}  // namespace Parlino
