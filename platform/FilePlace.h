// Where a file really lies, and who may read it: a player may keep a record in another folder, with
// a link to it in the program's, and may keep it from others.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <sys/stat.h>

namespace Parlino {

// Raises a GameError "<fileName> cannot be <action>: " with the system's text for the number.
[[noreturn]] void RaiseSystemError(std::string_view fileName, std::string_view action, int number);

// Raises that error for what is no ordinary file.
void ExpectFile(std::string_view fileName, std::string_view action, const struct stat& entry);

struct FilePlace {
  std::filesystem::path path;      // of a file or of nothing yet, but of no link
  std::optional<struct stat> old;  // what lies there
};

// Follows the links at the path. Raises a GameError for those that the system does not follow, and
// for those that lead to something other than a file.
FilePlace FindPlace(std::string_view fileName, const std::filesystem::path& path,
                    std::string_view action);

// The permissions for a new file that is to come into the place: those of the file there, or else
// of the last one set aside there, and for nobody more than he had. Its owner may always read it.
mode_t PermissionsFor(const FilePlace& place, int newFile);

// The name of the file of that path when it is set aside and has `number` - 1 before it.
std::filesystem::path AsideName(const std::filesystem::path& path, int number);

}  // namespace Parlino
