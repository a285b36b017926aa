// Golden positions: what the robots bid and play in each position of tests/robots/positions.txt.
#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

#include "headless/CardText.h"
#include "robots/Bidding.h"
#include "robots/Choices.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

using Position = std::map<std::string, std::string>;  // by the heads of the columns

std::vector<std::string> SplitRow(const std::string& row) {
  std::vector<std::string> cells;
  std::istringstream rest(row);
  for (std::string cell; std::getline(rest, cell, '|');) {
    cell.erase(0, cell.find_first_not_of(' '));
    cell.erase(cell.find_last_not_of(' ') + 1);
    cells.push_back(cell);
  }
  return cells;
}

// The rows of one kind; the first of them has the heads of the columns.
std::vector<Position> ReadPositions(std::string_view kind) {
  std::ifstream file(PARLINO_SOURCE_FOLDER "/tests/robots/positions.txt");
  std::vector<Position> positions;
  std::vector<std::string> heads;
  for (std::string row; std::getline(file, row);) {
    const std::vector<std::string> cells = SplitRow(row);
    if (cells.size() < 2 || cells.front() != kind) continue;
    if (heads.empty()) {
      heads = cells;
      continue;
    }
    Position position;
    for (std::size_t cell = 0; cell < heads.size(); ++cell) position[heads[cell]] = cells.at(cell);
    positions.push_back(position);
  }
  return positions;
}

// Every card that is neither in the hand, nor gone, nor in the trick lies in other hands. What was
// last counted is one of those. Returns the robot's place in the trick.
int SetUp(Position& position, Integer seat, Integer otherSeat) {
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
  std::vector<Position> positions = ReadPositions(kind);
  EXPECT_FALSE(positions.empty());
  for (Position& position : positions)
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
                [](int place, Integer seat) { return CardText(ChoiceAt(place).card(seat)); });
}

TEST(RobotPlay, KnowsWhetherPartnerIsWinningAndTheLeadCanBeBeaten) {
  ExpectAnswers("partner", "winning",
                [](int, Integer) { return PartnerWinningThird() ? "yes" : "no"; });
  ExpectAnswers("beat", "can",
                [](int, Integer seat) { return BeatStartCardQuery(seat) ? "yes" : "no"; });
}

}  // namespace
}  // namespace Parlino
