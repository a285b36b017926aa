// Every system call of a start and of a saving fails in turn. Whatever happens, each file is the
// old record or the new one whole, the player hears of what was not read or saved, and the next try
// succeeds.
#include <algorithm>
#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

#include "game/Game.h"
#include "headless/HeadlessInFolder.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/faults/FaultySystem.h"
#include "tests/support/HeadlessGame.h"
#include "tests/support/RecordFaults.h"
#include "tests/support/Rows.h"
#include "tests/support/TemporaryFolder.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

using Disk = std::map<std::string, std::string, std::less<>>;  // content by file name

// As a person may have written them: the program's own saving changes their bytes, even where it
// does not change the values.
const Disk HandWritten = {{"Names2.dat", "\"Bo\",\"Wes\",\"Nor\", Eve\n"},
                          {"Points.dat", "03,07\n"},
                          {"SaveGame.dat", "0120,-035,#TRUE#\n"},
                          {"Welcome.dat", "#TRUE#\n"}};

// A folder with records. The game finds them in it, or else links to them in a folder of its own.
class TestFolder : public TemporaryFolder {
 public:
  TestFolder(const Disk& files, bool behindLinks) {
    if (behindLinks) fs::create_directory(program /= "program");
    for (const auto& [name, content] : files) {
      std::ofstream(Path() / name, std::ios::binary) << content;
      if (behindLinks) fs::create_symlink("../" + name, program / name);
    }
  }
  // It is a fault when the program's folder has not just its links.
  [[nodiscard]] Disk Files() const {
    Disk files;
    for (const auto& entry : fs::directory_iterator(Path()))
      if (!entry.is_directory()) files[entry.path().filename()] = ReadText(entry.path());
    for (const auto& entry : fs::directory_iterator(program))
      EXPECT_NE(entry.is_symlink(), program == Path()) << entry.path().filename();
    return files;
  }
  fs::path program = Path();
};

// The game itself, set up afresh, with what the player saw.
struct GameOnDisk {
  explicit GameOnDisk(const TestFolder& folder) : platform(folder.program) {
    SetUpGame(platform);
    platform.keepsRecord = true;
  }
  [[nodiscard]] bool Said(std::string_view text) const { return Recorded(platform, text); }
  // Whether the player was told in which file that content is kept.
  [[nodiscard]] bool ToldOf(std::string_view content) const {
    constexpr std::string_view words = " is kept as ";
    return std::ranges::any_of(platform.record, [&](const std::string& line) {
      if (line.find(words) == line.npos) return false;
      const std::size_t name = line.find(words) + words.size();
      return ReadText(line.substr(name, line.find('"', name) - name)) == content;
    });
  }

  HeadlessInFolder platform;
};

bool StartsWell(const TestFolder& folder) {
  GameOnDisk game(folder);
  Events.Form_Load();
  return !game.Said("box: ");
}

const std::vector<Fault> Faults = [] {
  std::vector<Fault> faults = {{EINTR}, {EINVAL}, {0, Manner::Bit}, {EIO, Manner::Nothing}};
  for (const int number : {ENOSPC, EROFS, EACCES, EIO, ENOENT, EDQUOT, EMFILE})
    for (const Manner manner : {Manner::Once, Manner::FromHere}) faults.push_back({number, manner});
  return faults;
}();

// Once the record is renamed into its place it is safe, whatever the folder says, until the next
// save looks for its own; its permissions do not matter, and some disks cannot flush a file.
bool IsHarmless(const Calls& calls, const Fault& fault) {
  if (fault.call == 0 || fault.manner == Manner::Bit) return true;
  const auto call = calls.begin() + static_cast<std::ptrdiff_t>(fault.call) - 1;
  const std::pair<std::string_view, int> cases[] = {
      {"stat", ENOENT}, {"write", EINTR}, {"fsync", EINVAL}};
  return *call == "fchmod" || *call == "fstat" ||
         std::find(calls.begin(), call, "rename") != call ||
         std::ranges::count(cases, std::pair(*call, fault.number)) > 0;
}

Calls GiveANameTwice(bool behindLinks, const Fault& fault) {
  const TestFolder folder(HandWritten, behindLinks);
  const std::string newRecord = "\"Bo\",\"Ann, the first\",\"Nor\",\"Eve\"\r\n";
  Disk expected = folder.Files();
  GameOnDisk game(folder);
  Events.Form_Load();
  game.platform.answerInputBox = [](auto, auto, auto) { return "Ann, the first"; };
  BeginFault(fault);
  EXPECT_TRUE(ChooseMenu(MenuItem::MnuNameBot1));
  Calls calls = EndFault();
  const std::string content = folder.Files().at("Names2.dat");
  const bool isSaved = content == newRecord;
  EXPECT_TRUE(isSaved || content == expected.at("Names2.dat")) << content;
  EXPECT_NE(isSaved, game.Said("Names2.dat cannot be written: "));
  EXPECT_TRUE(fault.manner == Manner::FromHere || isSaved == IsHarmless(calls, fault));
  EXPECT_EQ(SeatNames[West], "Ann, the first");
  EXPECT_TRUE(ChooseMenu(MenuItem::MnuNameBot1));
  expected["Names2.dat"] = newRecord;
  EXPECT_EQ(folder.Files().at("Names2.dat"), newRecord);
  const bool mayLeaveTemporary =
      fault.manner == Manner::FromHere || fault.manner == Manner::Nothing;
  EXPECT_TRUE(mayLeaveTemporary || folder.Files() == expected);
  EXPECT_TRUE(StartsWell(folder));
  return calls;
}

TEST(SaveFaults, LoseNoRecordAndAreTold) {
  for (const bool behindLinks : {false, true})
    TryAtEveryCall(Faults, [=](const Fault& fault) { return GiveANameTwice(behindLinks, fault); });
}

// What the game saves of those records.
const Disk SavedAgain = {{"Names2.dat", "\"Bo\",\"Wes\",\"Nor\",\"Eve\"\r\n"},
                         {"Points.dat", "3,7\r\n"},
                         {"SaveGame.dat", "120,-35,#TRUE#\r\n"},
                         {"Welcome.dat", "#TRUE#\r\n"}};

// What cannot be read is told and left alone, and is not written over later.
Calls StartAndSave(const Disk& files, bool behindLinks, const Fault& fault) {
  const TestFolder folder(files, behindLinks);
  const Disk before = folder.Files();
  GameOnDisk game(folder);
  BeginFault(fault);
  Events.Form_Load();
  Calls calls = EndFault();
  EXPECT_TRUE(Table.FrmMain.Visible);
  for (const RecordDoor& door : RecordDoors) EXPECT_TRUE(door.save()) << door.file;
  const Disk after = folder.Files();
  std::size_t filesUnread = 0;
  for (const auto& [name, first] : FirstRecords) {
    const std::string file(name);
    const bool isUnread = game.Said("Form_Load\nError #") && game.Said(file + " cannot be ");
    EXPECT_EQ(after.at(file), isUnread ? first : SavedAgain.at(file));
    filesUnread += isUnread ? 1 : 0;
    EXPECT_TRUE(!isUnread || game.ToldOf(before.at(file))) << file << ": where is it?";
  }
  EXPECT_EQ(after.size(), before.size() + filesUnread);
  EXPECT_TRUE(filesUnread == 0 || files != HandWritten || fault.number != EINTR ||
              calls[fault.call - 1] != "read");
  EXPECT_TRUE(StartsWell(folder));
  return calls;
}

TEST(ReadFaults, AtTheStartLoseNothingThatIsSavedLater) {
  const Disk bad = {{"Names2.dat", "\"Bo"},
                    {"Points.dat", "3,7,8"},
                    {"SaveGame.dat", "1,2"},
                    {"Welcome.dat", "yes"}};
  for (const auto& disk : {std::pair(HandWritten, false), {bad, false}, {bad, true}})
    TryAtEveryCall(
        Faults, [&](const Fault& fault) { return StartAndSave(disk.first, disk.second, fault); });
}

TEST(ReadFaults, LeaveTheUnreadFileSomewhereWhenItsSavingFailsToo) {
  for (const bool behindLinks : {false, true})
    TryAtEveryCall({{ENOSPC}}, [=](const Fault& fault) {
      const TestFolder folder(HandWritten, behindLinks);
      const GameOnDisk game(folder);
      const auto isThere = [&] {
        return std::ranges::any_of(folder.Files(),
                                   [](const auto& file) { return file.second == "03,07\n"; });
      };
      BeginFault({EIO, Manner::FromHere, 1});
      Events.Form_Load();
      BeginFault(fault);
      const bool isSaved = SavePoints();
      Calls calls = EndFault();
      EXPECT_TRUE(isSaved || calls[fault.call - 1] != "link") << "some disks have no links";
      EXPECT_TRUE(isThere());
      EXPECT_TRUE(SavePoints());
      EXPECT_TRUE(isThere());
      EXPECT_EQ(folder.Files().size(), 5U);
      return calls;
    });
}

}  // namespace
}  // namespace Parlino
