// A game whose four files lie in a folder of the disk, made afresh for each try of a fault.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "platform/HeadlessInFolder.h"

namespace Parlino {

using Disk = std::map<std::string, std::string, std::less<>>;  // content by file name

// Records as a person may have written them: the program's own saving changes their bytes, even
// where it does not change the values.
inline const Disk HandWrittenRecords = {
    {"Names2.dat", "\"Bo\",\"Wes\",\"Nor\", Eve\n"},
    {"Points.dat", "03,07\n"},
    {"SaveGame.dat", "0120,-035,#TRUE#\n"},
    {"Welcome.dat", " #FALSE#\n"},
};

// A folder of the running test with those records, but for the files given; it goes when the test
// does.
class TestFolder {
 public:
  explicit TestFolder(const Disk& files = {});
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder();

  void Write(const Disk& files) const;
  [[nodiscard]] Disk Files() const;
  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// The game itself, set up afresh; its record tells what the player saw.
class GameOnDisk {
 public:
  explicit GameOnDisk(const TestFolder& folder);

  [[nodiscard]] bool Said(std::string_view text) const;

  HeadlessInFolder platform;
};

// Whether a new start in the folder has nothing to complain about.
bool StartsWell(const TestFolder& folder);

}  // namespace Parlino
