// A hand against the clocks: neither the counter of ticks nor the clock of the day can cut a pause
// short, stretch it or stop the game.
#include <cmath>
#include <gtest/gtest.h>
#include <set>

#include "engine/Generator.h"
#include "game/Game.h"
#include "persistence/DataFiles.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

constexpr std::uint32_t HourMs = 3'600'000;

struct Pause {
  std::uint32_t askedMs;
  std::uint32_t takenMs;
  std::uint64_t changes;  // of the table, when it began
  bool operator==(const Pause&) const = default;
};

// Every wait ends at half of what the game asks for, as a wait does in which something happens, so
// that a pause takes many waits; in one of the pauses the machine falls asleep for an hour.
class UnevenPlatform : public HeadlessPlatform {
 public:
  std::vector<Pause> pauses;
  std::size_t sleepsIn = SIZE_MAX;
  std::function<double(int look)> clock = [](int) { return 43'200.0; };

  void ProcessEvents(std::uint32_t atMostMs) override {
    if (atMostMs == Forever) return HeadlessPlatform::ProcessEvents(Forever);
    if (ticks == static_cast<std::uint32_t>(PauseStartTicks))
      pauses.push_back({atMostMs, 0, Table.Changes});
    const std::uint32_t before = ticks;
    HeadlessPlatform::ProcessEvents((atMostMs + 1) / 2);
    if (pauses.size() - 1 == sleepsIn) ticks += HourMs;
    pauses.back().takenMs += ticks - before;
    if (pauses.back().takenMs > 2 * HourMs) throw ScriptHasNothingToSay{};  // it would never end
  }

  double ClockSeconds() override { return clock(++looks_); }

 private:
  int looks_ = 0;
};

void PlayHands(
    UnevenPlatform& platform, int hands, const std::function<void()>& look = [] {}) {
  SetUpGame(platform);
  DealGenerator.Seed(31);
  platform.keepsRecord = true;
  South player(hands);
  platform.script = [&](std::uint32_t atMostMs) {
    look();
    player.OnEvents(atMostMs);
  };
  EXPECT_EQ(RunGame(), 0);
  EXPECT_EQ(player.HandsScored(), hands);
  EXPECT_FALSE(Recorded(platform, "critical box"));
}

// A hand for which time goes by as it should.
const std::vector<Pause>& UsualPauses() {
  static const std::vector<Pause> pauses = [] {
    UnevenPlatform platform;
    PlayHands(platform, 1);
    return platform.pauses;
  }();
  return pauses;
}

TEST(Time, EveryPauseOfAHandHasItsLengthWhereverInItTheTicksWrap) {
  std::uint32_t begins = 0;
  for (const Pause& usual : UsualPauses()) {
    ASSERT_EQ(usual.takenMs, usual.askedMs);
    for (const std::uint32_t boundary : {0x80000000U, 0U}) {
      UnevenPlatform platform;
      platform.ticks = boundary - begins - usual.askedMs / 3;
      PlayHands(platform, 1);
      ASSERT_EQ(platform.pauses, UsualPauses()) << "at change " << usual.changes;
    }
    begins += usual.takenMs;
  }
  EXPECT_GT(UsualPauses().size(), 200U);
}

TEST(Time, AnHourAsleepEndsThePauseItFallsIntoAndNoOther) {
  for (std::size_t pause = 0; pause < UsualPauses().size(); ++pause) {
    UnevenPlatform platform;
    platform.ticks = 0U - HourMs / 2;
    platform.sleepsIn = pause;
    PlayHands(platform, 1);
    auto expected = UsualPauses();
    expected[pause].takenMs = (expected[pause].askedMs + 1) / 2 + HourMs;
    ASSERT_EQ(platform.pauses, expected) << "asleep in pause " << pause;
  }
}

struct ClockCase {
  const char* what;
  double (*clock)(int look);
};

const ClockCase clocks[] = {
    {"it stands still", [](int) { return 43'200.0; }},
    {"it stands at midnight", [](int) { return 0.0; }},
    {"it goes over midnight in the deal",
     [](int look) { return std::fmod(86'399 + look, 86'400); }},
    {"it is set back an hour at every draw",
     [](int look) { return 43'200.0 - 3600 * (look % 12); }},
    {"it is set forward and back over midnight",
     [](int look) { return look % 2 == 0 ? 0.001 : 86'399.999; }},
};

TEST(Time, AClockThatIsSetNeitherStopsNorRepeatsADeal) {
  constexpr int hands = 8;
  for (const ClockCase& example : clocks) {
    UnevenPlatform platform;
    platform.clock = example.clock;
    std::set<std::string> deals;
    PlayHands(platform, hands, [&] {
      if (!Table.FramBids.Visible) return;
      std::string owners;
      for (const Card& card : Pack) owners += std::to_string(card.Owner);
      deals.insert(owners);
      for (Integer seat = Player; seat <= East; ++seat)
        ASSERT_EQ(HandOf(seat).Count(), CardsInSuit) << example.what;
    });
    EXPECT_EQ(deals.size(), hands) << example.what;
    for (const Pause& pause : platform.pauses)
      ASSERT_EQ(pause.takenMs, pause.askedMs) << example.what;
  }
}

}  // namespace
}  // namespace Parlino
