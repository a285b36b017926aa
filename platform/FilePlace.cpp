#include "platform/FilePlace.h"

#include <array>
#include <cerrno>
#include <climits>
#include <string>
#include <system_error>
#include <unistd.h>

#include "engine/state/Errors.h"
#include "engine/state/JoinText.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

std::string ReadLink(std::string_view fileName, const fs::path& path, std::string_view action) {
  std::array<char, PATH_MAX> text;
  const ssize_t length = ::readlink(path.c_str(), text.data(), text.size());
  if (length < 0) RaiseSystemError(fileName, action, errno);
  return {text.data(), static_cast<std::size_t>(length)};
}

// The system does not follow links that form a circle, or one that somebody else may have planted
// as a trap. What a link leads to is moved and replaced only if it is an ordinary file.
void ExpectGoodEnd(std::string_view fileName, const fs::path& link, std::string_view action) {
  struct stat end {};
  if (::stat(link.c_str(), &end) == 0) return ExpectFile(fileName, action, end);
  if (errno != ENOENT) RaiseSystemError(fileName, action, errno);
}

std::optional<struct stat> LastSetAside(const fs::path& path) {
  std::optional<struct stat> last;
  struct stat entry {};
  for (int number = 1; ::lstat(AsideName(path, number).c_str(), &entry) == 0; ++number)
    last = entry;
  return last;
}

// A program can read this only by changing it: for a moment, to the strictest value.
mode_t UnwantedPermissions() {
  const mode_t unwanted = ::umask(S_IRWXG | S_IRWXO);
  ::umask(unwanted);
  return unwanted;
}

}  // namespace

void RaiseSystemError(std::string_view fileName, std::string_view action, int number) {
  throw GameError(number, JoinText({fileName, " cannot be ", action, ": ",
                                    std::generic_category().message(number)}));
}

void ExpectFile(std::string_view fileName, std::string_view action, const struct stat& entry) {
  if (S_ISDIR(entry.st_mode)) RaiseSystemError(fileName, action, EISDIR);
  if (!S_ISREG(entry.st_mode)) RaiseSystemError(fileName, action, EINVAL);
}

FilePlace FindPlace(std::string_view fileName, const fs::path& path, std::string_view action) {
  constexpr int mostLinks = 40;  // as many as the system follows itself
  FilePlace place{path, {}};
  for (int links = 0; links <= mostLinks; ++links) {
    struct stat entry {};
    if (::lstat(place.path.c_str(), &entry) != 0) {
      if (errno == ENOENT) return place;
      RaiseSystemError(fileName, action, errno);
    }
    if (!S_ISLNK(entry.st_mode)) {
      place.old = entry;
      return place;
    }
    if (links == 0) ExpectGoodEnd(fileName, path, action);
    place.path = place.path.parent_path() / ReadLink(fileName, place.path, action);
  }
  RaiseSystemError(fileName, action, ELOOP);
}

mode_t PermissionsFor(const FilePlace& place, int newFile) {
  constexpr mode_t readableByAll = 0644, all = 0777, ofOne = 7;
  const auto old = place.old ? place.old : LastSetAside(place.path);
  if (!old || !S_ISREG(old->st_mode)) return readableByAll & ~UnwantedPermissions();
  const mode_t kept = (old->st_mode & all) | S_IRUSR;
  struct stat made {};
  if (::fstat(newFile, &made) == 0 && made.st_gid == old->st_gid) return kept;
  // The members of each group count as others for the other group.
  const mode_t common = kept & (kept >> 3) & ofOne;
  return (kept & S_IRWXU) | common << 3 | common;
}

fs::path AsideName(const fs::path& path, int number) {
  return path.string().append(".bad").append(number == 1 ? "" : std::to_string(number));
}

}  // namespace Parlino
