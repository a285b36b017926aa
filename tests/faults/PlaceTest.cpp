// A record stays where the player keeps it, and as private as the player has made it.
#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "engine/state/Errors.h"
#include "platform/FolderFiles.h"
#include "tests/faults/FaultySystem.h"
#include "tests/support/TemporaryFolder.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

class Places : public testing::Test {
 protected:
  Places() {
    for (const fs::path& folder : {program_, kept_}) fs::create_directory(folder);
  }

  static void Put(const fs::path& path) { std::ofstream(path) << "old"; }
  static std::string Get(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static int Count(const fs::path& folder) {
    return static_cast<int>(std::distance(fs::directory_iterator(folder), {}));
  }
  static int Permissions(const fs::path& path) {
    constexpr int all = 07777;
    struct stat entry {};
    return ::lstat(path.c_str(), &entry) == 0 ? static_cast<int>(entry.st_mode & all) : -1;
  }

  TemporaryFolder temporary_;
  const fs::path program_ = temporary_.Path() / "program";
  const fs::path kept_ = temporary_.Path() / "kept";
  const fs::path link_ = program_ / "Points.dat";
  const fs::path record_ = kept_ / "scores";
};

// Everything fails from some call on, so that the temporary file stays as it is then.
void CheckTemporaries(const fs::path& folder, mode_t permissions) {
  bool isSaved = false;
  int temporaries = 0;
  for (std::size_t call = 1; !isSaved; ++call) {
    FaultySystem system({call, EIO, Manner::FromHere});
    try {
      FolderFiles(folder).Replace("Points.dat", "new");
      isSaved = true;
    } catch (const GameError&) {
    }
    system.Mend();
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path().filename() == "Points.dat") continue;
      const auto wider = static_cast<mode_t>(entry.status().permissions()) & ~(permissions | 0600);
      EXPECT_EQ(wider, 0U) << "call " << call;
      fs::remove(entry.path());
      ++temporaries;
    }
  }
  EXPECT_GT(temporaries, 3);
}

TEST_F(Places, KeepTheirPermissionsAtEveryMoment) {
  constexpr gid_t ownGroup = 0, otherGroup = 12345;
  const struct {
    mode_t before;
    gid_t group;  // its members are others for the new file
    int after;
  } cases[] = {
      {0600, ownGroup, 0600},   {0644, ownGroup, 0644},   {0664, ownGroup, 0664},
      {0640, ownGroup, 0640},   {0444, ownGroup, 0444},   {0000, ownGroup, 0400},
      {06755, ownGroup, 0755},  {0660, otherGroup, 0600}, {0664, otherGroup, 0644},
      {0604, otherGroup, 0600},
  };
  for (const auto& example : cases) {
    SCOPED_TRACE(testing::Message() << std::oct << example.before << " " << example.group);
    Put(link_);
    const bool isOthers = example.group == otherGroup;
    if (isOthers && ::chown(link_.c_str(), ::getuid(), otherGroup) != 0) continue;
    ASSERT_EQ(::chmod(link_.c_str(), example.before), 0);
    CheckTemporaries(program_, static_cast<mode_t>(example.after));
    EXPECT_EQ(Get(link_), "new");
    EXPECT_EQ(Permissions(link_), example.after);
    fs::remove(link_);
  }
}

// Also when it has been set aside, by this game or by one before.
TEST_F(Places, GiveANewRecordThePermissionsOfTheOneSetAside) {
  const mode_t mask = ::umask(0);
  for (const auto& [unwanted, expected] : {std::pair(0022, 0644), std::pair(0077, 0600)}) {
    ::umask(static_cast<mode_t>(unwanted));
    FolderFiles(program_).Replace("Names2.dat", "first");
    EXPECT_EQ(Permissions(program_ / "Names2.dat"), expected);
    EXPECT_EQ(::umask(0), static_cast<mode_t>(unwanted)) << "it is another one afterwards";
    fs::remove(program_ / "Names2.dat");
  }
  ::umask(022);
  for (const mode_t permissions : {0640U, 0600U}) {
    Put(link_);
    ASSERT_EQ(::chmod(link_.c_str(), permissions), 0);
    FolderFiles(program_).SetAside("Points.dat");
    FolderFiles(program_).Replace("Points.dat", "new");
    EXPECT_EQ(Permissions(link_), static_cast<int>(permissions));
  }
  ::umask(mask);
}

TEST_F(Places, BehindLinksAreFollowed) {
  for (const bool isThere : {true, false}) {
    for (const auto& path : {link_, program_ / "second", record_}) fs::remove(path);
    fs::create_symlink("second", link_);
    fs::create_symlink("../kept/scores", program_ / "second");
    if (isThere) Put(record_);
    Put(kept_ / "scores.saving-AbCdEf");
    fs::last_write_time(kept_ / "scores.saving-AbCdEf",
                        fs::file_time_type::clock::now() - std::chrono::hours(2));
    FolderFiles(program_).Replace("Points.dat", "new");
    EXPECT_EQ(Get(record_), "new");
    EXPECT_EQ(fs::read_symlink(link_), "second");
    EXPECT_EQ(Count(program_), 2);
    EXPECT_EQ(Count(kept_), 1);
  }
}

TEST_F(Places, BehindLinksAreSetAsideWhereTheyLie) {
  fs::create_symlink(record_, link_);
  Put(record_);
  FolderFiles files(program_);
  files.SetAside("Points.dat");
  EXPECT_EQ(Get(kept_ / "scores.bad"), "old");
  files.Replace("Points.dat", "new");
  EXPECT_EQ(Get(record_), "new");
  EXPECT_EQ(Get(kept_ / "scores.bad"), "old");
  EXPECT_EQ(Count(program_), 1);
}

TEST_F(Places, ThatCannotBeWrittenLeaveTheirLink) {
  fs::create_symlink("round", program_ / "round");
  ASSERT_EQ(::mkfifo((kept_ / "pipe").c_str(), S_IRUSR | S_IWUSR), 0);
  const struct {
    fs::path place;
    int error;
  } cases[] = {{"round", ELOOP},
               {"../gone/scores", ENOENT},
               {"../kept", EISDIR},
               {"../kept/pipe", EINVAL},
               {"../kept/pipe/scores", ENOTDIR}};
  for (const auto& example : cases) {
    SCOPED_TRACE(example.place);
    fs::create_symlink(example.place, link_);
    FolderFiles files(program_);
    try {
      EXPECT_THROW(static_cast<void>(files.Read("Points.dat")), GameError);
      files.Replace("Points.dat", "new");
      ADD_FAILURE() << "it was written";
    } catch (const GameError& error) {
      EXPECT_EQ(error.Number(), example.error);
      EXPECT_TRUE(std::string_view(error.what()).starts_with("Points.dat cannot be written: "));
    }
    EXPECT_EQ(fs::read_symlink(link_), example.place);
    EXPECT_EQ(Count(program_), 2);
    EXPECT_EQ(Count(kept_), 1);
    fs::remove(link_);
  }
}

}  // namespace
}  // namespace Parlino
