#include "tests/faults/GameOnDisk.h"

#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "engine/Generator.h"
#include "game/Game.h"
#include "table/TableEvents.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {

namespace fs = std::filesystem;

namespace {

// A disk in memory takes hundreds of new folders in no time; any other will do.
fs::path FolderOfFolders() {
  const fs::path memory = "/dev/shm";
  return ::access(memory.c_str(), W_OK) == 0 ? memory : fs::path(testing::TempDir());
}

}  // namespace

// Several tests may run at once.
TestFolder::TestFolder(const Disk& files)
    : path_(FolderOfFolders() / ("parlino-faults-" + std::to_string(::getpid()))) {
  fs::remove_all(path_);
  fs::create_directories(path_);
  Write(HandWrittenRecords);
  Write(files);
}

TestFolder::~TestFolder() {
  fs::remove_all(path_);
}

void TestFolder::Write(const Disk& files) const {
  for (const auto& [name, content] : files)
    std::ofstream(path_ / name, std::ios::binary) << content;
}

Disk TestFolder::Files() const {
  Disk files;
  for (const auto& entry : fs::directory_iterator(path_)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files[entry.path().filename()] = {std::istreambuf_iterator<char>(file), {}};
  }
  return files;
}

GameOnDisk::GameOnDisk(const TestFolder& folder) : platform(folder.Path()) {
  SetUpGame(platform);
  DealGenerator.Seed(1);
  platform.keepsRecord = true;
}

bool GameOnDisk::Said(std::string_view text) const {
  return Recorded(platform, text);
}

bool StartsWell(const TestFolder& folder) {
  GameOnDisk game(folder);
  Events.Form_Load();
  return !game.Said("box: ");
}

}  // namespace Parlino
