// What a hand and its parts cost without a window.
#include <benchmark/benchmark.h>

#include "engine/Deal.h"
#include "engine/Generator.h"
#include "engine/TrickPlay.h"
#include "game/Game.h"
#include "headless/Headless.h"
#include "headless/South.h"
#include "robots/Bidding.h"
#include "robots/FourthHand.h"
#include "robots/Lead.h"
#include "robots/SecondAndThirdHand.h"
#include "table/CardDisplay.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"

namespace Parlino {
namespace {

constexpr std::uint64_t Seed = 1;

// Whole hands, from clearing the table to the score dialog, with South clicking random cards.
void PlayHand(benchmark::State& state) {
  HeadlessPlatform platform;
  South south(0);
  PlayAtRandom(south, Seed);
  bool done = false;
  platform.script = [&](std::uint32_t atMostMs) {
    if (atMostMs != Forever) return;
    if (MFormDeluxe.Visible) {
      done = !done && !state.KeepRunning();
      ClickAnswer(done ? 1 : 0);
    } else if (!south.Act()) {
      ChooseMenu(MenuItem::MnuNew);
    }
  };
  platform.wakesScriptInPauses = false;
  SetUpGame(platform);
  DealGenerator.Seed(Seed);
  RunGame();
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(PlayHand);

void SetUpTable(HeadlessPlatform& platform) {
  SetUpGame(platform);
  DealGenerator.Seed(Seed);
  Events.Form_Load();
}

void DealPack(benchmark::State& state) {
  HeadlessPlatform platform;
  SetUpTable(platform);
  while (state.KeepRunning()) {
    PlacePackDeal();
    DealCards();
  }
}
BENCHMARK(DealPack);

// One decision of a robot at each position, over the hands of many deals. West leads, and the seats
// before the robot have each played the lowest card of their longest suit.
template <Integer (*Choose)(Integer), int Position>
void ChooseCard(benchmark::State& state) {
  HeadlessPlatform platform;
  SetUpTable(platform);
  while (state.KeepRunningBatch(100)) {
    state.PauseTiming();
    PlacePackDeal();
    DealCards();
    for (int position = 1; position < Position; ++position) {
      const Integer seat = SeatAfter(West, position - 1);
      RecordInTrick(position, seat, LowestCardSuit(MostSuitCards(seat), seat));
    }
    state.ResumeTiming();
    for (int decision = 0; decision < 100; ++decision)
      benchmark::DoNotOptimize(Choose(SeatAfter(West, Position - 1)));
  }
}
BENCHMARK(ChooseCard<ChooseFirstCard, 1>)->Name("ChooseFirstCard");
BENCHMARK(ChooseCard<ChooseSecondCard, 2>)->Name("ChooseSecondCard");
BENCHMARK(ChooseCard<ChooseThirdCard, 3>)->Name("ChooseThirdCard");
BENCHMARK(ChooseCard<ChooseFourthCard, 4>)->Name("ChooseFourthCard");
BENCHMARK(ChooseCard<GetBid, 1>)->Name("GetBid");

void StartUp(benchmark::State& state) {
  while (state.KeepRunning()) {
    HeadlessPlatform platform;
    SetUpTable(platform);
  }
}
BENCHMARK(StartUp);

}  // namespace
}  // namespace Parlino
