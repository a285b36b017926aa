// Totals and counts at the edges of 16 bits: up to the edge they count, beyond it they are reported
// and kept; the hand is settled all the same, the next one can be played and all of it be saved.
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "game/Game.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

struct Start {
  int ours = 0;
  int theirs = 0;
  std::string points = "0,0";
};

// How the first hand was settled.
struct Outcome {
  std::map<std::string, int> totals;
  int reports = 0;
  bool isGameOver = false;
};

// Plays the first hand of the seed from this start, and a second one, saves and leaves.
Outcome PlayFrom(const Start& start, std::uint64_t seed, int bid, std::string* points = nullptr) {
  HeadlessGame game(seed);
  auto& files = game.platform.files;
  files["SaveGame.dat"] = JoinText({start.ours, ",", start.theirs, ",#TRUE#\r\n"});
  files["Points.dat"] = start.points + "\r\n";
  South player(2, bid);
  Outcome outcome;
  game.platform.onMsgBox = [&](std::string_view text) {
    EXPECT_TRUE(text.starts_with("Unexpected error in procedure: DealNewRound\nError #34")) << text;
    outcome.reports += player.HandsScored() == 0 ? 1 : 0;
    if (outcome.reports > 2) throw ScriptHasNothingToSay{};  // the hand would never be settled
  };
  player.onDialog = [&] {
    if (player.HandsScored() > 0) return;
    outcome.totals = {{"ours", OurPoints}, {"theirs", TheirPoints}};
    outcome.isGameOver = MFormDeluxe.Label3 == "   Game Over";
  };
  game.platform.script = [&](std::uint32_t atMostMs) { player.OnEvents(atMostMs); };
  EXPECT_EQ(RunGame(), 0);
  EXPECT_EQ(player.HandsScored(), 2);
  EXPECT_EQ(files["SaveGame.dat"], JoinText({OurPoints, ",", TheirPoints, ",#TRUE#\r\n"}));
  if (points != nullptr) *points = files["Points.dat"];
  return outcome;
}

TEST(Range, ATotalReachesEachEdgeAndNeverWraps) {
  std::set<std::string> seen;
  for (std::uint64_t seed = 1; seed <= 6; ++seed) {
    for (const int bid : {1, 13}) {
      const auto scores = PlayFrom({}, seed, bid).totals;
      for (const auto& [team, score] : scores) {
        const int edge = score > 0 ? 32767 : -32768;
        for (const int beyond : {0, 1}) {
          const int before = edge - score + (score > 0 ? beyond : -beyond);
          auto expected = scores;
          expected[team] = beyond == 0 ? edge : before;
          const bool isOurs = team == "ours";
          const Outcome outcome = PlayFrom({isOurs ? before : 0, isOurs ? 0 : before}, seed, bid);
          EXPECT_EQ(outcome.totals, expected) << team << " from " << before << " by " << score;
          EXPECT_EQ(outcome.reports, beyond) << team << " from " << before << " by " << score;
          EXPECT_EQ(outcome.isGameOver, score > 0);
          seen.insert(team + " to " + std::to_string(edge));
        }
      }
    }
  }
  EXPECT_EQ(seen.size(), 4U) << "both teams at both edges";
}

TEST(Range, TheCountsOfGamesStopAtTheirEdge) {
  const Start weWin{2000, 5};
  const Start theyWin{5, 2000};
  const struct {
    Start start;
    const char* before;
    const char* after;
    int reports;
  } cases[] = {
      {weWin, "32766,32766", "32767,32767", 0},
      {weWin, "32767,32767", "32767,32767", 2},
      {weWin, "5,32767", "6,32767", 1},
      {weWin, "32767,5", "32767,6", 1},
      {theyWin, "0,32766", "0,32767", 0},
      {theyWin, "32767,32767", "32767,32767", 1},
      {theyWin, "-32768,-32768", "-32768,-32767", 0},
  };
  for (auto [start, before, after, reports] : cases) {
    start.points = before;
    std::string points;
    const Outcome outcome = PlayFrom(start, 17, 1, &points);
    EXPECT_TRUE(outcome.isGameOver);
    EXPECT_EQ(points, std::string(after) + "\r\n") << "from " << before;
    EXPECT_EQ(outcome.reports, reports) << "from " << before;
  }
}

}  // namespace
}  // namespace Parlino
