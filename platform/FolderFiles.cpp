#include "platform/FolderFiles.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "engine/state/Errors.h"
#include "platform/FilePlace.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

// Stands between a record's name and the random end of its temporary file's name.
constexpr std::string_view TemporaryMark = ".saving-";

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  [[nodiscard]] int Number() const { return number_; }
  [[nodiscard]] bool IsOpen() const { return number_ >= 0; }
  // Closes it and returns whether that succeeded.
  bool Close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

bool WriteAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(descriptor, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written == 0) errno = EIO;  // trying again might never end
    if (written <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// EINVAL means that this kind of file system cannot flush a file; the content is written all the
// same.
bool FlushFile(int descriptor) {
  return ::fsync(descriptor) == 0 || errno == EINVAL;
}

void FlushFolder(const fs::path& folder) {
  const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.IsOpen()) ::fsync(descriptor.Number());
}

// Removes the temporary files of programs that were killed while saving the record. One less than
// an hour old may belong to another game that is saving in this folder. Ages are measured against
// the record, which is on the same disk; what cannot be removed stays until the next save.
void RemoveAbandoned(const fs::path& path) {
  constexpr auto longestSave = std::chrono::hours(1);
  const std::string beginning = path.filename().string().append(TemporaryMark);
  std::error_code failed;
  const fs::file_time_type now = fs::last_write_time(path, failed);
  fs::directory_iterator entry(path.parent_path(), failed);
  for (; !failed && entry != fs::directory_iterator(); entry.increment(failed)) {
    if (!entry->path().filename().string().starts_with(beginning)) continue;
    const fs::file_time_type written = entry->last_write_time(failed);
    if (!failed && now - written > longestSave) ::unlink(entry->path().c_str());
  }
}

bool IsThere(std::string_view fileName, const fs::path& path, std::string_view action) {
  struct stat ignored {};
  if (::lstat(path.c_str(), &ignored) == 0) return true;
  if (errno != ENOENT) RaiseSystemError(fileName, action, errno);
  return false;
}

std::string ReadWhole(std::string_view fileName, const fs::path& path, std::size_t atMost) {
  // Without waiting, in case this is a pipe that nobody writes to.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.IsOpen()) RaiseSystemError(fileName, "read", errno);
  struct stat kind {};
  if (::fstat(file.Number(), &kind) != 0) RaiseSystemError(fileName, "read", errno);
  ExpectFile(fileName, "read", kind);
  std::string content;
  std::array<char, 4096> part;
  while (true) {
    const ssize_t count = ::read(file.Number(), part.data(), part.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) RaiseSystemError(fileName, "read", errno);
    if (count == 0) return content;
    content.append(part.data(), static_cast<std::size_t>(count));
    if (content.size() > atMost) RaiseSystemError(fileName, "read", EFBIG);
  }
}

// Writes the content to a file beside the record and flushes it to the disk. Returns its path.
std::string WriteTemporary(std::string_view fileName, const FilePlace& place,
                           std::string_view content) {
  // Each writer needs a name of its own: two games in one folder must not share a temporary file.
  std::string temporary = place.path.string().append(TemporaryMark).append("XXXXXX");
  Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.IsOpen()) RaiseSystemError(fileName, "written", errno);
  // On a disk without permissions the file stays as it was made, its owner's alone.
  static_cast<void>(::fchmod(file.Number(), PermissionsFor(place, file.Number())));
  const bool written = WriteAll(file.Number(), content) && FlushFile(file.Number()) && file.Close();
  if (written) return temporary;
  const int number = errno;
  ::unlink(temporary.c_str());
  RaiseSystemError(fileName, "written", number);
}

}  // namespace

// A file counts as unread until it has been read to its end.
std::string FolderFiles::Read(std::string_view fileName, std::size_t atMost) {
  unread_.emplace(fileName);
  std::string content = ReadWhole(fileName, folder_ / fileName, atMost);
  unread_.erase(unread_.find(fileName));
  return content;
}

std::string FolderFiles::Replace(std::string_view fileName, std::string_view content) {
  if (content.size() > LongestRecord) RaiseSystemError(fileName, "written", EFBIG);
  const FilePlace place = FindPlace(fileName, folder_ / fileName, "written");
  const fs::path& path = place.path;
  const std::string temporary = WriteTemporary(fileName, place, content);
  const auto unread = unread_.find(fileName);
  std::string aside;
  try {
    if (unread != unread_.end() && IsThere(fileName, path, "written"))
      aside = fs::absolute(KeepAside(fileName, path, "written").path);
    if (::rename(temporary.c_str(), path.c_str()) != 0)
      RaiseSystemError(fileName, "written", errno);
  } catch (const GameError&) {
    ::unlink(temporary.c_str());
    throw;
  }
  if (unread != unread_.end()) unread_.erase(unread);
  // Makes the rename survive a power cut; the record is complete either way.
  FlushFolder(path.parent_path());
  RemoveAbandoned(path);
  return aside;
}

std::string FolderFiles::SetAside(std::string_view fileName) {
  const auto unread = unread_.emplace(fileName).first;
  const fs::path path = FindPlace(fileName, folder_ / fileName, "set aside").path;
  const Aside aside = KeepAside(fileName, path, "set aside");
  if (aside.hasOldNameToo && ::unlink(path.c_str()) != 0)
    RaiseSystemError(fileName, "set aside", errno);
  unread_.erase(unread);
  return fs::absolute(aside.path);
}

// A hard link leaves the file under a name at every moment and never replaces another game's file.
// On a file system without hard links the file is renamed.
FolderFiles::Aside FolderFiles::KeepAside(std::string_view fileName, const fs::path& path,
                                          std::string_view action) {
  fs::path name = AsideName(path, 1);
  std::error_code ignored;
  for (int number = 2; ::link(path.c_str(), name.c_str()) != 0; ++number) {
    if (errno != EEXIST && !IsThere(fileName, name, action)) {
      if (::rename(path.c_str(), name.c_str()) == 0) return {name, false};
      RaiseSystemError(fileName, action, errno);
    }
    if (fs::equivalent(path, name, ignored)) break;
    name = AsideName(path, number);
  }
  return {name, true};
}

bool FolderFiles::Exists(std::string_view fileName) const {
  std::error_code ignored;
  return fs::exists(folder_ / fileName, ignored);
}

}  // namespace Parlino
