// Two games in one folder save at the same time, each in a process of its own, while a third reads.
#include <cstdlib>
#include <gtest/gtest.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/faults/GameOnDisk.h"
#include "tests/faults/States.h"

namespace Parlino {
namespace {

// States whose records are short and long.
constexpr std::uint32_t FirstState = 1, LastState = 90, Step = 11;

[[noreturn]] void SaveInTurn(const TestFolder& folder, std::uint32_t first) {
  HeadlessInFolder platform(folder.Path());
  UsePlatform(platform);
  constexpr int rounds = 300;
  for (int round = 0; round < rounds; ++round)
    for (std::uint32_t state = first; state <= LastState; state += 2 * Step) {
      PutState(state);
      if (!SaveNames()) std::_Exit(EXIT_FAILURE);
    }
  std::_Exit(EXIT_SUCCESS);
}

TEST(TwoGames, LeaveEachRecordWholeAtAnyMoment) {
  const TestFolder folder;
  std::set<std::string> whole{folder.Files().at("Names2.dat")};
  for (std::uint32_t state = FirstState; state <= LastState; state += Step)
    whole.insert(PutState(state));
  for (const std::uint32_t first : {FirstState, FirstState + Step})
    if (::fork() == 0) SaveInTurn(folder, first);
  FolderFiles reader(folder.Path());
  int saversWell = 0;
  for (int saversLeft = 2; saversLeft > 0;) {
    EXPECT_TRUE(whole.contains(reader.Read(NamesFile)));
    int status = 0;
    const pid_t ended = ::waitpid(-1, &status, WNOHANG);
    if (ended == 0) continue;
    --saversLeft;
    if (ended > 0 && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS) ++saversWell;
  }
  EXPECT_EQ(saversWell, 2);
  EXPECT_EQ(folder.Files().size(), 4U) << "temporary files are left";
  EXPECT_TRUE(StartsWell(folder));
}

}  // namespace
}  // namespace Parlino
