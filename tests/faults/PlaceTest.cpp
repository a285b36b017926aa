// A record stays where the player keeps it, and as private as the player has made it.
#include <algorithm>
#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

#include "engine/state/Errors.h"
#include "platform/FolderFiles.h"
#include "tests/faults/FaultySystem.h"
#include "tests/support/Rows.h"
#include "tests/support/TemporaryFolder.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

// Of an entry of places.txt, or the number itself.
mode_t PermissionsOf(const std::string& entry) {
  return static_cast<mode_t>(std::stoi(entry.substr(entry.rfind(':') + 1), nullptr, 8));
}

// The system asks the administrator for no permission, who therefore plays as somebody else.
uid_t PlayersNumber() {
  constexpr uid_t nobody = 65534;
  return ::getuid() == 0 ? nobody : ::getuid();
}

// Makes what the entry says; files are of some hours ago. Only an administrator can
// give a file to another group.
bool Make(const fs::path& root, const std::string& entry) {
  const std::size_t end = entry.find_first_of(":>!");
  const fs::path path = root / entry.substr(0, end);
  std::istringstream rest(entry.substr(end + 1));
  std::string content, permissions, group;
  std::getline(std::getline(std::getline(rest, content, ':'), permissions, ':'), group);
  if (entry[end] == '!') return ::mkfifo(path.c_str(), S_IRUSR | S_IWUSR) == 0;
  if (entry[end] == '>') return ::symlink(content.c_str(), path.c_str()) == 0;
  std::ofstream(path) << content;
  fs::last_write_time(path, fs::last_write_time(path) - std::chrono::hours(2));
  const gid_t owners = group.empty() ? ::getgid() : static_cast<gid_t>(std::stoi(group));
  return ::chown(path.c_str(), PlayersNumber(), owners) == 0 &&
         ::chmod(path.c_str(), PermissionsOf(permissions)) == 0;
}

// Everything there.
std::vector<std::string> Describe(const fs::path& root) {
  std::vector<std::string> entries;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const fs::file_status status = entry.symlink_status();
    if (status.type() == fs::file_type::directory) continue;
    std::ostringstream text(entry.path().string().substr(root.string().size() + 1), std::ios::ate);
    if (status.type() == fs::file_type::symlink)
      text << ">" << fs::read_symlink(entry.path()).string();
    if (status.type() == fs::file_type::fifo) text << "!";
    if (status.type() == fs::file_type::regular) {
      fs::permissions(entry.path(), fs::perms::owner_read, fs::perm_options::add);
      text << ":" << ReadText(entry.path()) << ":0" << std::oct
           << static_cast<int>(status.permissions());
    }
    entries.push_back(text.str());
  }
  std::ranges::sort(entries);
  return entries;
}

std::vector<std::string> Split(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), {}};
}

// Returns what the player is told.
std::string Act(FolderFiles& files, const std::string& action) {
  try {
    if (action == "read") static_cast<void>(files.Read("Points.dat"));
    if (action == "aside") files.SetAside("Points.dat");
    if (action == "replace") files.Replace("Points.dat", "new");
    return {};
  } catch (const GameError& error) {
    return action == "read" ? "" : error.what();
  }
}

// A temporary file may stay when everything fails from some call on, but nobody may read it who may
// not read the record.
Calls TryPlace(Row& row, const Fault& fault) {
  const TemporaryFolder folder;
  for (const char* name : {"", "program", "kept"}) {
    fs::create_directory(folder.Path() / name);
    fs::permissions(folder.Path() / name, fs::perms::all);
  }
  for (const std::string& entry : Split(row["before"]))
    if (!Make(folder.Path(), entry)) return {""};
  const mode_t mask = ::umask(PermissionsOf(row["unwanted"]));
  FolderFiles files(folder.Path() / "program");
  std::string told;
  EXPECT_EQ(::seteuid(PlayersNumber()), 0);
  BeginFault(fault);
  for (const std::string& action : Split(row["does"])) told += Act(files, action);
  Calls calls = EndFault();
  EXPECT_EQ(::seteuid(::getuid()), 0);
  EXPECT_EQ(::umask(mask), PermissionsOf(row["unwanted"])) << "it is another one afterwards";
  const bool isWritten = row["told"].empty();
  const auto found = Describe(folder.Path());
  for (const std::string& entry : found)
    EXPECT_TRUE(!isWritten || entry.find(".saving-") == entry.npos ||
                (PermissionsOf(entry) & ~PermissionsOf(row["after"]) & 0177) == 0)
        << entry;
  if (fault.call != 0) return {};
  EXPECT_EQ(found, Split(isWritten ? row["after"] : row["before"]));
  EXPECT_EQ(told, isWritten ? "" : "Points.dat cannot be written: " + row["told"]);
  return calls;
}

TEST(Places, KeepTheirLinksAndTheirPermissionsAtEveryMoment) {
  for (Row& row : ReadRows("faults/places.txt", "place")) {
    SCOPED_TRACE(row["before"] + " " + row["why"]);
    TryAtEveryCall({{EIO, Manner::FromHere}},
                   [&](const Fault& fault) { return TryPlace(row, fault); });
  }
}

}  // namespace
}  // namespace Parlino
