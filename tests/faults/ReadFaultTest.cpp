// Every system call of the start of the program fails in turn. What cannot be read is told and left
// alone, and what the game never read is not written over later.
#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>

#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/faults/FaultySystem.h"
#include "tests/faults/GameOnDisk.h"
#include "tests/support/HeadlessGame.h"
#include "tests/support/RecordFaults.h"

namespace Parlino {
namespace {

struct FirstValue {
  std::string_view file;
  bool (*isTaken)();  // the value of the disk, not the first one
};
constexpr FirstValue FirstValues[] = {
    {NamesFile, [] { return PlayerName == "Bo"; }},
    {PointsFile, [] { return GamesPlayed == 7; }},
    {SaveGameFile, [] { return TheirPoints == -35 && GameInProgress == True; }},
    {WelcomeFile, [] { return HideWelcome == True; }},
};

bool Holds(const Disk& disk, std::string_view content) {
  return std::ranges::any_of(disk, [&](const auto& file) { return file.second == content; });
}

// Starts, saves everything, and sees that nothing unread is lost. Returns the calls of the start.
std::vector<std::string_view> StartAndSave(const Disk& files, bool behindLinks,
                                           const Fault& fault) {
  const TestFolder folder(files, behindLinks);
  const Disk before = folder.Files();
  GameOnDisk game(folder);
  FaultySystem system(fault);
  Events.Form_Load();
  system.Mend();
  EXPECT_TRUE(Table.FrmMain.Visible);
  Disk unread;
  for (const FirstValue& value : FirstValues) {
    const std::string text = "Form_Load\nError #";
    const std::string told = std::string(value.file) + " cannot be ";
    EXPECT_EQ(!value.isTaken(), game.Said(text) && game.Said(told)) << value.file;
    if (!value.isTaken()) unread.insert(*before.find(value.file));
  }
  for (const RecordDoor& door : RecordDoors) EXPECT_TRUE(door.save()) << door.file;
  const Disk after = folder.Files();
  for (const auto& [name, content] : unread) {
    EXPECT_TRUE(Holds(after, content)) << name;
    EXPECT_TRUE(game.ContentToldOf().contains(content)) << name << ": nobody says where it is";
  }
  EXPECT_EQ(after.size(), before.size() + unread.size());
  EXPECT_TRUE(StartsWell(folder));
  return system.Calls();
}

TEST(ReadFaults, AtTheStartLoseNothingThatIsSavedLater) {
  const Disk good = {{"Welcome.dat", "#TRUE#\n"}};
  const Disk bad = {{"Names2.dat", "\"Bo"},
                    {"Points.dat", "3,7,8"},
                    {"SaveGame.dat", "1,2"},
                    {"Welcome.dat", "yes"}};
  for (const auto& [files, behindLinks] :
       {std::pair(good, false), std::pair(bad, false), std::pair(bad, true)}) {
    const auto calls = StartAndSave(files, behindLinks, {});
    ASSERT_TRUE(std::ranges::count(calls, "read") >= 8) << "the calls are not counted";
    for (std::size_t call = 1; call <= calls.size(); ++call)
      for (const int number : {EIO, EACCES, ENOENT, EMFILE, EINTR, EROFS})
        for (const Manner manner : {Manner::Once, Manner::FromHere}) {
          if (number == EINTR && manner == Manner::FromHere) continue;   // would be read for ever
          if (number == ENOENT && calls[call - 1] == "lstat") continue;  // there is none: no fault
          SCOPED_TRACE(testing::Message() << "call " << call << " " << calls[call - 1] << ", error "
                                          << number << ", manner " << static_cast<int>(manner));
          StartAndSave(files, behindLinks, {call, number, manner});
        }
  }
}

void LeaveTheUnreadFileSomewhere(bool behindLinks) {
  std::size_t calls = 1;
  for (std::size_t call = 0; call <= calls; ++call) {
    SCOPED_TRACE(testing::Message() << "call " << call);
    const TestFolder folder({}, behindLinks);
    GameOnDisk game(folder);
    {
      FaultySystem unreadable({1, EIO, Manner::FromHere});
      Events.Form_Load();
    }
    FaultySystem system({call, ENOSPC, Manner::Once});
    SavePoints();
    system.Mend();
    if (call == 0) calls = system.Calls().size();
    EXPECT_TRUE(Holds(folder.Files(), HandWrittenRecords.at("Points.dat")));
    EXPECT_TRUE(SavePoints());
    EXPECT_TRUE(Holds(folder.Files(), HandWrittenRecords.at("Points.dat")));
    EXPECT_EQ(folder.Files().size(), 5U);
  }
  EXPECT_GT(calls, 10U) << "the calls are not counted";
}

TEST(ReadFaults, LeaveTheUnreadFileSomewhereWhenItsSavingFailsToo) {
  for (const bool behindLinks : {false, true}) LeaveTheUnreadFileSomewhere(behindLinks);
}

}  // namespace
}  // namespace Parlino
