// Disks that really fail: nothing is put in the system's place here.
#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "persistence/DataFiles.h"
#include "table/TableEvents.h"
#include "tests/faults/GameOnDisk.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

void Limit(decltype(RLIMIT_FSIZE) resource, rlim_t most) {
  rlimit limit{};
  EXPECT_EQ(getrlimit(resource, &limit), 0);
  limit.rlim_cur = std::min(most, limit.rlim_max);
  EXPECT_EQ(setrlimit(resource, &limit), 0);
}

// The system asks the administrator for no permission, so that one plays as somebody else. A
// sandbox may know nobody else.
bool BecomeSomebodyElse() {
  constexpr uid_t nobody = 65534;
  return ::getuid() != 0 || ::seteuid(nobody) == 0;
}
void BecomeOneselfAgain() {
  EXPECT_EQ(::seteuid(::getuid()), 0);
}

// The system sends a signal too, which would end the program.
TEST(RealDisk, KeepsTheOldRecordWhenAFileMayNotGrow) {
  std::signal(SIGXFSZ, SIG_IGN);
  const TestFolder folder;
  const Disk before = folder.Files();
  GameOnDisk game(folder);
  Events.Form_Load();
  Limit(RLIMIT_FSIZE, 8);
  EXPECT_FALSE(SaveNames());
  Limit(RLIMIT_FSIZE, RLIM_INFINITY);
  EXPECT_TRUE(game.Said("Names2.dat cannot be written: File too large"));
  EXPECT_TRUE(folder.Files() == before);
  EXPECT_TRUE(SaveNames());
  EXPECT_TRUE(StartsWell(folder));
}

// The folder may be written and the file may not be read: saving would replace it all the same.
TEST(RealDisk, KeepsAFileThatMayNotBeRead) {
  const TestFolder folder;
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(folder.Path() / "Points.dat", fs::perms::none);
  ASSERT_TRUE(BecomeSomebodyElse());
  GameOnDisk game(folder);
  game.platform.script = [](std::uint32_t) { ClickAnswer(0); };
  Events.Form_Load();
  EXPECT_TRUE(ChooseMenu(MenuItem::ErasePoints));
  BecomeOneselfAgain();
  EXPECT_TRUE(game.Said("Points.dat cannot be read: Permission denied"));
  EXPECT_TRUE(
      game.Said("box: Parlino: Points.dat could not be read and has been replaced. The file "
                "that was there is kept as " +
                folder.Path().string() + "/Points.dat.bad"));
  fs::permissions(folder.Path() / "Points.dat.bad", fs::perms::owner_all);
  EXPECT_EQ(folder.Files().at("Points.dat.bad"), HandWrittenRecords.at("Points.dat"));
  EXPECT_EQ(folder.Files().at("Points.dat"), "0,0\r\n");
}

}  // namespace
}  // namespace Parlino
