// The data files in a folder of the disk, where nothing fails; tests/faults/ has what does.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "engine/state/Errors.h"
#include "persistence/DataFiles.h"
#include "platform/FolderFiles.h"
#include "tests/support/Rows.h"
#include "tests/support/TemporaryFolder.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

TEST(FirstRecords, AreWhatTheProgramIsInstalledWith) {
  for (const FirstRecord& first : FirstRecords) {
    const std::string path = PARLINO_SOURCE_FOLDER "/assets/data/" + std::string(first.file);
    EXPECT_EQ(ReadText(path), first.record) << first.file;
  }
}

class FolderFilesTest : public testing::Test {
 protected:
  int CountFiles() { return static_cast<int>(std::distance(fs::directory_iterator(folder_), {})); }

  TemporaryFolder temporary_;
  const fs::path& folder_ = temporary_.Path();
};

// A killed program leaves its temporary file behind; it goes once no game can be writing it.
TEST_F(FolderFilesTest, RemoveOnlyTemporaryFilesThatAreOldAndTheirOwn) {
  const auto now = fs::file_time_type::clock::now();
  for (const char* name : {"Points.dat.saving-AbCdEf", "Points.dat.saving-GhIjKl",
                           "Names2.dat.saving-AbCdEf", "Points.dat.backup", "Points.dat.bad"}) {
    std::ofstream(folder_ / name) << "1,2";
    fs::last_write_time(folder_ / name, now - std::chrono::minutes(61));
  }
  fs::last_write_time(folder_ / "Points.dat.saving-GhIjKl", now - std::chrono::minutes(59));
  FolderFiles(folder_).Replace("Points.dat", "1,2\r\n");
  EXPECT_FALSE(fs::exists(folder_ / "Points.dat.saving-AbCdEf"));
  EXPECT_EQ(CountFiles(), 5);
}

TEST_F(FolderFilesTest, RefuseWhatIsNoOrdinaryFileWithoutWaitingForIt) {
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), S_IRUSR | S_IWUSR), 0);
  fs::create_directory(folder_ / "folder");
  for (const char* name : {"pipe", "folder"})
    EXPECT_THROW(static_cast<void>(FolderFiles(folder_).Read(name)), GameError) << name;
}

TEST_F(FolderFilesTest, SetAFileAsideWithoutLosingAnOlderOne) {
  FolderFiles files(folder_);
  for (const char* content : {"first", "second", "third"}) {
    files.Replace("Names2.dat", content);
    files.SetAside("Names2.dat");
  }
  EXPECT_FALSE(files.Exists("Names2.dat"));
  EXPECT_EQ(files.Read("Names2.dat.bad"), "first");
  EXPECT_EQ(files.Read("Names2.dat.bad2"), "second");
  EXPECT_EQ(files.Read("Names2.dat.bad3"), "third");
}

}  // namespace
}  // namespace Parlino
