// A robot sees its own hand and what lies on the table, and nothing else: however the cards that it
// cannot see are spread over the other hands, it bids and plays the same.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <vector>

#include "engine/Generator.h"
#include "engine/state/Questions.h"
#include "game/Game.h"
#include "robots/Bidding.h"
#include "robots/Choices.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

constexpr int Hands = 500;
constexpr int Spreads = 20;

// Owners and totals as they are now come back at the end: the hand goes on.
class Thought {
 public:
  explicit Thought(Integer seat) : seat_(seat) {
    for (int card = 1; card <= CardsInPack; ++card) {
      owners_[card] = Pack[card].Owner;
      if (owners_[card] != seat && owners_[card] != NoSeat) hidden_.push_back(card);
    }
  }
  Thought(const Thought&) = delete;
  Thought& operator=(const Thought&) = delete;
  ~Thought() {
    for (int card = 1; card <= CardsInPack; ++card) Pack[card].Owner = owners_[card];
    PauseMs = pauseMs_;
  }

  // The other hands keep their sizes. What was last counted is one of those hands, too.
  void SpreadHiddenCards(Generator& chance) {
    for (int left = static_cast<int>(hidden_.size()); left > 1; --left)
      std::swap(Pack[hidden_[static_cast<std::size_t>(left - 1)]].Owner,
                Pack[hidden_[static_cast<std::size_t>(chance.NextBelow(left))]].Owner);
    SuitTotals(SeatAfter(seat_, 1 + chance.NextBelow(SeatsAtTable - 1)));
  }

 private:
  Integer seat_;
  Integer pauseMs_ = PauseMs;
  Indexed<Integer, 1, CardsInPack> owners_;
  std::vector<int> hidden_;
};

// A robot plays South as well; each choice that is made in these hands is made again and again.
class Watcher {
 public:
  std::map<std::string, int> choices;  // how many of each kind were looked at
  bool isHonest = true;

  void OnEvents(std::uint32_t atMostMs) {
    LookAtRobots();
    if (atMostMs != Forever) return;
    if (MFormDeluxe.Visible)
      ClickAnswer(++handsScored_ < Hands ? 0 : 1);
    else if (Table.FramBids.Visible)
      ClickBid(Check("bid", Player, GetBid(Player), [] { return GetBid(Player); }));
    else if (PlayerTurn != False)
      ClickCard(CheckCard(HumansPosition(), Player, ChooseRobotsCard(HumansPosition(), Player)));
    else
      ChooseMenu(MenuItem::MnuNew);
  }

 private:
  // A robot has just chosen, and nobody has moved since, in the pause after its bid and while its
  // card is being named.
  void LookAtRobots() {
    for (Integer seat = West; seat <= East; ++seat) {
      if (Table.LblInfo.Caption == SeatNames[seat] + " deciding what to bid")
        Check("bid", seat, Bids[seat], [seat] { return GetBid(seat); });
      const int position = (seat - Leader + SeatsAtTable) % SeatsAtTable + 1;
      const Integer card = TrickCards[position];
      if (Table.LblInfo.Visible && card != 0 && Pack[card].Owner == seat &&
          Table.LblInfo.Caption == "Card being played is  " + Pack[card].FullName)
        CheckCard(position, seat, card);
    }
  }

  Integer CheckCard(int position, Integer seat, Integer card) {
    return Check(JoinText({"position ", position}), seat, card,
                 [position, seat] { return ChooseRobotsCard(position, seat); });
  }

  template <class Choose>
  Integer Check(const std::string& kind, Integer seat, Integer chosen, Choose choose) {
    ++choices[JoinText({kind, " of seat ", seat})];
    Thought thought(seat);
    for (int spread = 1; spread <= Spreads && isHonest; ++spread) {
      thought.SpreadHiddenCards(chance_);
      const Integer again = choose();
      isHonest = again == chosen;
      EXPECT_EQ(again, chosen) << kind << " of seat " << seat << ", trick " << TrickNumber
                               << " of hand " << handsScored_ + 1;
    }
    return chosen;
  }

  Generator chance_;
  int handsScored_ = 0;
};

TEST(HonestRobots, DoNotLookIntoOtherHands) {
  HeadlessGame game(41);
  Watcher watcher;
  game.platform.script = [&](std::uint32_t atMostMs) { watcher.OnEvents(atMostMs); };
  EXPECT_EQ(RunGame(), 0);
  int cards = 0;
  for (const auto& [kind, count] : watcher.choices) {
    EXPECT_GE(count, Hands) << kind;
    cards += kind.starts_with("bid") ? 0 : count;
  }
  EXPECT_EQ(watcher.choices.size(), 5U * SeatsAtTable) << "four positions and the bid";
  EXPECT_EQ(cards, Hands * CardsInPack);
}

}  // namespace
}  // namespace Parlino
