#include "tests/faults/GameOnDisk.h"

#include <fstream>
#include <gtest/gtest.h>

#include "engine/Generator.h"
#include "game/Game.h"
#include "table/TableEvents.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {

namespace fs = std::filesystem;

TestFolder::TestFolder(const Disk& files, bool behindLinks) : programFolder_(Path()) {
  Write(HandWrittenRecords);
  Write(files);
  if (!behindLinks) return;
  programFolder_ /= "program";
  fs::create_directory(programFolder_);
  for (const auto& [name, content] : HandWrittenRecords)
    fs::create_symlink("../" + name, programFolder_ / name);
}

void TestFolder::Write(const Disk& files) const {
  for (const auto& [name, content] : files)
    std::ofstream(Path() / name, std::ios::binary) << content;
}

Disk TestFolder::Files() const {
  Disk files;
  for (const auto& entry : fs::directory_iterator(Path())) {
    if (entry.is_directory()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    files[entry.path().filename()] = {std::istreambuf_iterator<char>(file), {}};
  }
  if (programFolder_ == Path()) return files;
  std::size_t links = 0;
  for (const auto& entry : fs::directory_iterator(programFolder_)) {
    EXPECT_TRUE(entry.is_symlink()) << entry.path().filename() << " is no link";
    ++links;
  }
  EXPECT_EQ(links, HandWrittenRecords.size());
  return files;
}

GameOnDisk::GameOnDisk(const TestFolder& folder) : platform(folder.ProgramFolder()) {
  SetUpGame(platform);
  DealGenerator.Seed(1);
  platform.keepsRecord = true;
}

bool GameOnDisk::Said(std::string_view text) const {
  return Recorded(platform, text);
}

std::set<std::string> GameOnDisk::ContentToldOf() const {
  constexpr std::string_view words = " is kept as ";
  std::set<std::string> contents;
  for (const std::string& line : platform.record) {
    const std::size_t place = line.find(words);
    if (place == std::string::npos) continue;
    std::ifstream file(line.substr(place + words.size()), std::ios::binary);
    contents.emplace(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return contents;
}

bool StartsWell(const TestFolder& folder) {
  GameOnDisk game(folder);
  Events.Form_Load();
  return !game.Said("box: ");
}

}  // namespace Parlino
