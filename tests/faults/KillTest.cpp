// A game that is killed at any system call of its saving: the record is the old or the new one,
// whole, a new game starts with it, and what the dead one has left behind goes in time.
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/faults/FaultySystem.h"
#include "tests/faults/GameOnDisk.h"
#include "tests/faults/States.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t OldState = 7, NewState = 90;  // of other lengths

bool SaveState(const fs::path& folder, std::uint32_t state) {
  HeadlessInFolder platform(folder);
  UsePlatform(platform);
  PutState(state);
  return SaveNames();
}

// Returns whether the saving came to its end, because it has fewer calls than that.
bool SaveAndDieAtCall(const fs::path& folder, std::size_t call) {
  const pid_t saver = ::fork();
  if (saver == 0) {
    const FaultySystem system({call, 0, Manner::Killed});
    std::_Exit(SaveState(folder, NewState) ? EXIT_SUCCESS : EXIT_FAILURE);
  }
  int status = 0;
  EXPECT_EQ(::waitpid(saver, &status, 0), saver);
  EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == EXIT_SUCCESS);
  return WIFEXITED(status);
}

TEST(Kills, LeaveEachRecordWholeAndNothingForEver) {
  bool isEnd = false;
  std::size_t call = 1;
  for (; !isEnd; ++call) {
    SCOPED_TRACE(testing::Message() << "killed at call " << call);
    const TestFolder folder;
    ASSERT_TRUE(SaveState(folder.Path(), OldState));
    isEnd = SaveAndDieAtCall(folder.Path(), call);
    const std::string content = folder.Files().at("Names2.dat");
    EXPECT_TRUE(content == PutState(NewState) || (!isEnd && content == PutState(OldState)));
    EXPECT_TRUE(StartsWell(folder));
    for (const auto& entry : fs::directory_iterator(folder.Path()))
      fs::last_write_time(entry.path(), entry.last_write_time() - std::chrono::hours(2));
    EXPECT_TRUE(SaveState(folder.Path(), OldState));
    EXPECT_EQ(folder.Files().size(), 4U) << "temporary files are left";
  }
  EXPECT_GT(call, 10U) << "the calls are not counted";
}

}  // namespace
}  // namespace Parlino
