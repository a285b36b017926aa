// Two games in one folder save at the same time, each in a process of its own, while a third reads.
#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/faults/GameOnDisk.h"
#include "tools/kill-saves/States.h"

namespace Parlino {
namespace {

// States whose records are short and long.
constexpr std::uint32_t FirstState = 1, LastState = 90, Step = 11;

[[noreturn]] void SaveInTurn(const TestFolder& folder, std::uint32_t first) {
  HeadlessInFolder platform(folder.Path());
  UsePlatform(platform);
  constexpr int rounds = 100;
  for (int round = 0; round < rounds; ++round) {
    for (std::uint32_t state = first; state <= LastState; state += 2 * Step) {
      PutState(state);
      for (const SavedRecord& record : SavedRecords)
        if (!record.save()) std::_Exit(EXIT_FAILURE);
    }
  }
  std::_Exit(EXIT_SUCCESS);
}

// What a file may hold: what was there before, or the whole record of some state.
std::set<std::string> WholeRecords(const SavedRecord& record, const TestFolder& folder) {
  std::set<std::string> records{FolderFiles(folder.Path()).Read(record.file)};
  for (std::uint32_t state = FirstState; state <= LastState; state += Step)
    records.insert(ContentInState(record, state));
  return records;
}

TEST(TwoGames, LeaveEachRecordWholeAtAnyMoment) {
  const TestFolder folder;
  std::array<std::set<std::string>, RecordCount> whole;
  for (std::size_t place = 0; place < RecordCount; ++place)
    whole[place] = WholeRecords(SavedRecords[place], folder);

  for (const std::uint32_t first : {FirstState, FirstState + Step})
    if (::fork() == 0) SaveInTurn(folder, first);
  FolderFiles reader(folder.Path());
  int saversWell = 0;
  for (int saversLeft = 2; saversLeft > 0;) {
    for (std::size_t place = 0; place < RecordCount; ++place)
      EXPECT_TRUE(whole[place].contains(reader.Read(SavedRecords[place].file)))
          << SavedRecords[place].file;
    int status = 0;
    const pid_t ended = ::waitpid(-1, &status, WNOHANG);
    if (ended == 0) continue;
    --saversLeft;
    if (ended > 0 && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS) ++saversWell;
  }
  EXPECT_EQ(saversWell, 2);
  EXPECT_EQ(folder.Files().size(), RecordCount) << "temporary files are left";
  EXPECT_TRUE(StartsWell(folder));
}

}  // namespace
}  // namespace Parlino
