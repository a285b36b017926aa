// A game whose four files lie in a folder of the disk, made afresh for each try of a fault.
#pragma once

#include <map>
#include <set>
#include <string>

#include "headless/HeadlessInFolder.h"
#include "tests/support/TemporaryFolder.h"

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

// A folder with those records, but for the files given.
class TestFolder : public TemporaryFolder {
 public:
  explicit TestFolder(const Disk& files = {}, bool behindLinks = false);

  void Write(const Disk& files) const;
  // Where the records lie. It is a fault when the program's folder has not just its links.
  [[nodiscard]] Disk Files() const;
  // Where they lie too, or one with a link to each.
  [[nodiscard]] const std::filesystem::path& ProgramFolder() const { return programFolder_; }

 private:
  std::filesystem::path programFolder_;
};

// The game itself, set up afresh; its record tells what the player saw.
class GameOnDisk {
 public:
  explicit GameOnDisk(const TestFolder& folder);

  [[nodiscard]] bool Said(std::string_view text) const;
  // What is in the files of which the player was told that they are kept under another name.
  [[nodiscard]] std::set<std::string> ContentToldOf() const;

  HeadlessInFolder platform;
};

// Whether a new start in the folder has nothing to complain about.
bool StartsWell(const TestFolder& folder);

}  // namespace Parlino
