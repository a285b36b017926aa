// Golden positions: what the robots bid and play in each position of tests/robots/positions.txt.
#include <gtest/gtest.h>

#include "headless/CardText.h"
#include "robots/Bidding.h"
#include "robots/Choices.h"
#include "tests/support/HeadlessGame.h"
#include "tests/support/Rows.h"

namespace Parlino {
namespace {

// Every card that is neither in the hand, nor gone, nor in the trick lies in other hands. What was
// last counted is one of those. Returns the robot's place in the trick.
int SetUp(Row& position, Integer seat, Integer otherSeat) {
  SetItUp();
  for (Card& card : Pack) card.Owner = otherSeat;
  GiveHand(seat, position["hand"]);
  GiveHand(NoSeat, position["gone"]);
  GiveHand(NoSeat, position["trick"]);
  TrumpSuit = SuitOf(position["trumps"].front());
  SetTrick(West, position["trick"]);
  SuitTotals(otherSeat);
  return static_cast<int>((position["trick"].size() + 1) / 3) + 1;
}

// Asks for the answer to each position with every seat in the robot's place and the hidden cards in
// every other hand.
template <class Answer>
void ExpectAnswers(std::string_view kind, const std::string& head, Answer answer) {
  const HeadlessGame game;
  for (Row& position : ReadRows("robots/positions.txt", kind))
    for (Integer seat = Player; seat <= East; ++seat)
      for (int places = 1; places < SeatsAtTable; ++places) {
        const int place = SetUp(position, seat, SeatAfter(seat, places));
        ASSERT_EQ(answer(place, seat), position[head])
            << position["why"] << ": trumps " << position["trumps"] << ", trick "
            << position["trick"] << ", hand " << position["hand"];
      }
}

TEST(RobotPlay, BidsTheGoldenHands) {
  ExpectAnswers("bid", "bid", [](int, Integer seat) { return std::to_string(GetBid(seat)); });
}

TEST(RobotPlay, PlaysTheGoldenPositions) {
  ExpectAnswers("play", "card",
                [](int place, Integer seat) { return CardText(ChooseRobotsCard(place, seat)); });
}

TEST(RobotPlay, KnowsWhetherPartnerIsWinningAndTheLeadCanBeBeaten) {
  ExpectAnswers("partner", "winning",
                [](int, Integer) { return PartnerWinningThird() ? "yes" : "no"; });
  ExpectAnswers("beat", "can",
                [](int, Integer seat) { return BeatStartCardQuery(seat) ? "yes" : "no"; });
}

}  // namespace
}  // namespace Parlino
