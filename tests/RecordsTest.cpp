// The four data files with every content there is: a record is taken whole or not at all.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

#include "engine/state/Errors.h"
#include "headless/HeadlessInFolder.h"
#include "persistence/Records.h"
#include "tests/support/RecordFaults.h"
#include "tests/support/Rows.h"
#include "tests/support/TemporaryFolder.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

const RecordDoor& DoorOf(std::string_view file) {
  return *std::ranges::find(RecordDoors, file, &RecordDoor::file);
}

RecordVerdict TrySoundly(const RecordDoor& door, std::string_view content) {
  RecordVerdict verdict = TryRecord(door, content);
  EXPECT_EQ(verdict.fault, "") << door.file << " holding " << testing::PrintToString(content);
  return verdict;
}

TEST(Records, AreTakenAndSavedAgainOrRefused) {
  for (Row& row : ReadRows("records.txt", "record")) {
    const RecordVerdict verdict = TrySoundly(DoorOf(row["file"]), row["content"]);
    const std::string savedAs = row["saved"].empty() ? "" : row["saved"] + "\r\n";
    EXPECT_EQ(verdict.savedAs, savedAs) << row["file"] << " holding " << row["content"];
  }
}

TEST(Records, KeepNamesButForWhatTheyCannotHold) {
  for (Row& row : ReadRows("records.txt", "name")) {
    EXPECT_EQ(KeepStorable(row["given"]), row["kept"]);
    EXPECT_EQ(RecordWriter().Add(row["given"]).Line(), "\"" + row["kept"] + "\"\r\n");
  }
}

// A record needs no line end, so that a last field that has no mark of its own end may be cut.
TEST(Records, SurviveEveryCutAndEveryChangedByte) {
  const struct {
    std::string_view file;
    std::string record;
    std::set<std::size_t> taken;  // lengths
  } samples[] = {
      {NamesFile, "\"Ann\",\"Be, a\",\"\",\"D\xC3\xA9\"\r\n", {17, 22, 24}},
      {PointsFile, "100,200\r\n", {5, 6, 7, 9}},
      {SaveGameFile, "120,-35,#TRUE#\r\n", {14, 16}},
      {WelcomeFile, "#FALSE#\r\n", {7, 9}},
  };
  for (const auto& [file, record, taken] : samples) {
    for (std::size_t length = 0; length <= record.size(); ++length)
      EXPECT_EQ(TrySoundly(DoorOf(file), record.substr(0, length)).accepted, taken.contains(length))
          << file << " cut to " << length;
    for (std::size_t place = 0; place < record.size(); ++place)
      for (int byte = 0; byte < 256; ++byte) {
        std::string changed = record;
        changed[place] = static_cast<char>(byte);
        TrySoundly(DoorOf(file), changed);
      }
  }
}

// What is too long to be read is kept, and nothing is saved that would be too long.
TEST(Records, HaveALongestLength) {
  const std::string quoted = "\"\",\"\",\"\",\"\"\r\n";
  const struct {
    std::string record;
    bool isRead;
    bool isSaved;
  } cases[] = {
      {"\"" + std::string(LongestRecord - quoted.size(), 'x') + quoted.substr(1), true, true},
      {std::string(LongestRecord - 3, 'x') + ",,,", true, false},
      {std::string(LongestRecord - 2, 'x') + ",,,", false, true},
      {std::string(5 * LongestRecord, ','), false, true},
  };
  for (const auto& example : cases) {
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.Path();
    std::ofstream(folder / NamesFile, std::ios::binary) << example.record;
    HeadlessInFolder platform(folder);
    UsePlatform(platform);
    PlayerName = "kept";
    try {
      ReadRecord(NamesFile);
    } catch (const GameError& error) {
      EXPECT_EQ(error.what(), "Names2.dat cannot be read: File too large"s);
    }
    EXPECT_EQ(PlayerName != "kept", example.isRead);
    EXPECT_EQ(SaveNames(), example.isSaved);
    EXPECT_EQ(fs::file_size(folder / NamesFile) == example.record.size(), example.isRead);
    const fs::path aside = folder / "Names2.dat.bad";
    EXPECT_EQ(fs::exists(aside) && fs::file_size(aside) == example.record.size(), !example.isRead);
  }
}

TEST(Records, AreSoundOnWhatFuzzingFound) {
  int files = 0;
  for (const auto& entry :
       fs::directory_iterator(fs::path(PARLINO_SOURCE_FOLDER) / "tests/fuzz/corpus/records")) {
    const std::string content = ReadText(entry.path());
    for (const RecordDoor& door : RecordDoors) TrySoundly(door, content);
    ++files;
  }
  EXPECT_GT(files, 0);
}

}  // namespace
}  // namespace Parlino
