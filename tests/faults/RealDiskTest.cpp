// Disks that really fail: nothing is put in the system's place here.
#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "table/TableEvents.h"
#include "table/TableView.h"
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

// The system asks the administrator for no permission, so that one plays as somebody else.
bool BecomeSomebodyElse() {
  constexpr uid_t nobody = 65534;
  return ::getuid() != 0 || ::seteuid(nobody) == 0;
}
void BecomeOneselfAgain() {
  EXPECT_EQ(::seteuid(::getuid()), 0);
}

// A sandbox may know no other user.
bool PermissionsCount() {
  const bool count = BecomeSomebodyElse();
  BecomeOneselfAgain();
  return count;
}

struct Trouble {
  const char* what;
  void (*begin)(const fs::path& folder);
  void (*end)(const fs::path& folder);
  const char* told;
  bool needsPermissions = false;
};

constexpr Trouble Troubles[] = {
    {"the folder cannot be written",
     [](const fs::path& folder) {
       fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec |
                                   fs::perms::others_read | fs::perms::others_exec);
       BecomeSomebodyElse();
     },
     [](const fs::path& folder) {
       BecomeOneselfAgain();
       fs::permissions(folder, fs::perms::owner_all);
     },
     "Permission denied", true},
    {"a link leads into a folder that cannot be written",
     [](const fs::path& folder) {
       fs::create_directory(folder / "other");
       fs::rename(folder / "Names2.dat", folder / "other" / "names");
       fs::create_symlink("other/names", folder / "Names2.dat");
       fs::permissions(folder, fs::perms::all);
       fs::permissions(folder / "other", fs::perms::owner_read | fs::perms::owner_exec |
                                             fs::perms::others_read | fs::perms::others_exec);
       BecomeSomebodyElse();
     },
     [](const fs::path& folder) {
       BecomeOneselfAgain();
       fs::permissions(folder / "other", fs::perms::owner_all);
       fs::rename(folder / "other" / "names", folder / "Names2.dat");
       fs::remove(folder / "other");
     },
     "Permission denied", true},
    {"the folder is moved away",
     [](const fs::path& folder) { fs::rename(folder, folder.string() + "-away"); },
     [](const fs::path& folder) { fs::rename(folder.string() + "-away", folder); },
     "No such file or directory"},
    {"a folder lies in the place of the file",
     [](const fs::path& folder) {
       fs::rename(folder / "Names2.dat", folder / "kept");
       fs::create_directory(folder / "Names2.dat");
     },
     [](const fs::path& folder) {
       fs::remove(folder / "Names2.dat");
       fs::rename(folder / "kept", folder / "Names2.dat");
     },
     "Is a directory"},
    {"the disk takes eight bytes",
     [](const fs::path&) {
       std::signal(SIGXFSZ, SIG_IGN);
       Limit(RLIMIT_FSIZE, 8);
     },
     [](const fs::path&) { Limit(RLIMIT_FSIZE, RLIM_INFINITY); }, "File too large"},
    {"no file can be opened any more", [](const fs::path&) { Limit(RLIMIT_NOFILE, 0); },
     [](const fs::path&) { Limit(RLIMIT_NOFILE, RLIM_INFINITY); }, "Too many open files"},
};

TEST(RealDisk, KeepsTheOldRecordAndTakesTheNewOneLater) {
  for (const Trouble& trouble : Troubles) {
    if (trouble.needsPermissions && !PermissionsCount()) continue;
    SCOPED_TRACE(trouble.what);
    const TestFolder folder;
    const Disk before = folder.Files();
    GameOnDisk game(folder);
    Events.Form_Load();
    game.platform.answerInputBox = [](auto, auto, auto) { return "Ann, the first"; };
    trouble.begin(folder.Path());
    const bool chosen = ChooseMenu(MenuItem::MnuBot3Name);
    trouble.end(folder.Path());
    EXPECT_TRUE(chosen);
    EXPECT_TRUE(game.Said(std::string("Names2.dat cannot be written: ") + trouble.told));
    EXPECT_EQ(Table.LblName[3].Caption, "Ann, the first - Hi ");
    EXPECT_TRUE(folder.Files() == before);
    EXPECT_TRUE(ChooseMenu(MenuItem::MnuBot3Name));
    EXPECT_EQ(folder.Files().at("Names2.dat"), "\"Bo\",\"Wes\",\"Nor\",\"Ann, the first\"\r\n");
    EXPECT_TRUE(StartsWell(folder));
  }
}

// The folder may be written and the file may not be read: saving would replace it all the same.
TEST(RealDisk, KeepsAFileThatMayNotBeRead) {
  if (!PermissionsCount()) GTEST_SKIP() << "nobody else to play as";
  const TestFolder folder;
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(folder.Path() / "Points.dat", fs::perms::none);
  BecomeSomebodyElse();
  GameOnDisk game(folder);
  game.platform.script = [](std::uint32_t) { ClickAnswer(0); };
  Events.Form_Load();
  EXPECT_TRUE(ChooseMenu(MenuItem::ErasePoints));
  BecomeOneselfAgain();
  EXPECT_TRUE(game.Said("Points.dat cannot be read: Permission denied"));
  fs::permissions(folder.Path() / "Points.dat.bad", fs::perms::owner_all);
  EXPECT_EQ(folder.Files().at("Points.dat.bad"), HandWrittenRecords.at("Points.dat"));
  EXPECT_EQ(folder.Files().at("Points.dat"), "0,0\r\n");
}

}  // namespace
}  // namespace Parlino
