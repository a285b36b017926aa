// Where a file really is, and who may read it: a player may keep a record in another folder, with a
// link to it in the program's folder, and may keep it private.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <sys/stat.h>

namespace Parlino {

// Raises a GameError "<fileName> cannot be <action>: " with the system's text for the number.
[[noreturn]] void RaiseSystemError(std::string_view fileName, std::string_view action, int number);

// Raises that error if the entry is not an ordinary file.
void ExpectFile(std::string_view fileName, std::string_view action, const struct stat& entry);

struct FilePlace {
  std::filesystem::path path;      // of a file, or of nothing yet; never of a link
  std::optional<struct stat> old;  // what is there now
};

// Follows the links at the path. Raises a GameError for those that the system does not follow, and
// for those that lead to something other than a file.
FilePlace FindPlace(std::string_view fileName, const std::filesystem::path& path,
                    std::string_view action);

// The permissions for a new file in that place: those of the file there, or else of the last one
// set aside there, so that nobody may do more than before. The owner may always read it.
mode_t PermissionsFor(const FilePlace& place, int newFile);

// The name of number `number`, from 1 on, under which the file of that path may be set aside.
std::filesystem::path AsideName(const std::filesystem::path& path, int number);

}  // namespace Parlino
