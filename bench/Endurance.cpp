// parlino-endurance: plays hand after hand without a window, with robots at all seats, and for each
// tenth of the run prints what the program is using. Fails if memory grows after the first tenth or
// the calls nest deeper.
//
//   parlino-endurance --hands N

#include <chrono>
#include <cstdio>

#include "bench/ProcessFigures.h"
#include "engine/Generator.h"
#include "game/Game.h"
#include "headless/Headless.h"
#include "headless/South.h"
#include "tools/CommandLine.h"

namespace Parlino {
namespace {

constexpr std::uint64_t Seed = 1;
// How much the data may grow after the first tenth. A leak of a few bytes a hand would exceed it.
constexpr long MostGrowthKiB = 64;

class Run {
 public:
  Run(HeadlessPlatform& platform, int hands) : platform_(platform), hands_(hands), south_(hands) {
    PlayAsRobot(south_);
    south_.onDialog = [this] { EndHand(); };
    platform.script = [this](std::uint32_t atMostMs) { south_.OnEvents(atMostMs); };
    platform.wakesScriptInPauses = false;
    platform.onMsgBox = [this](std::string_view) { ++reports_; };
    std::puts("   hands  resident KiB  data KiB  deepest nesting  us a hand  error reports");
  }

  // Reports what has grown, and returns whether nothing has.
  [[nodiscard]] bool IsLevel() const {
    if (first_.memory.dataKiB < 0)
      std::fprintf(stderr, "the system does not say how much memory is in use\n");
    else if (last_.memory.dataKiB > first_.memory.dataKiB + MostGrowthKiB)
      std::fprintf(stderr, "memory has grown by more than %ld KiB\n", MostGrowthKiB);
    else if (last_.nesting > first_.nesting)
      std::fprintf(stderr, "the calls nest deeper than in the first tenth\n");
    else
      return true;
    return false;
  }

 private:
  struct Row {
    MemoryFigures memory;
    int nesting = 0;
  };

  void EndHand() {
    ++played_;
    const int tenth = hands_ / 10;
    if (played_ % tenth == 0) PrintRow(tenth);
  }

  void PrintRow(int handsInRow) {
    using Clock = std::chrono::steady_clock;
    const std::chrono::duration<double, std::micro> elapsed = Clock::now() - rowBegan_;
    last_ = {MemoryInUse(), platform_.deepest};
    if (played_ == handsInRow) first_ = last_;
    std::printf("%8d  %12ld  %8ld  %15d  %9.1f  %13d\n", played_, last_.memory.residentKiB,
                last_.memory.dataKiB, last_.nesting, elapsed.count() / handsInRow, reports_);
    std::fflush(stdout);
    rowBegan_ = Clock::now();
  }

  HeadlessPlatform& platform_;
  int hands_;
  South south_;
  int played_ = 0;
  int reports_ = 0;
  Row first_;
  Row last_;
  std::chrono::steady_clock::time_point rowBegan_ = std::chrono::steady_clock::now();
};

int Play(int hands) {
  HeadlessPlatform platform;
  const Run run(platform, hands);
  SetUpGame(platform);
  DealGenerator.Seed(Seed);
  const int status = RunGame();
  return status == 0 && run.IsLevel() ? 0 : 1;
}

}  // namespace
}  // namespace Parlino

int main(int count, char* arguments[]) {
  constexpr int fewest = 10;  // one hand for each tenth of the run
  int hands = 0;
  if (Parlino::ParseCommandLine(count, arguments,
                                {{"--hands", Parlino::TakeNumber(hands, fewest)}}))
    return Parlino::Play(hands);
  std::fprintf(stderr, "usage: parlino-endurance --hands N   (N at least 10)\n");
  return 2;
}
