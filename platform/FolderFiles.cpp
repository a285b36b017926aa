#include "platform/FolderFiles.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "engine/Errors.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void RaiseSystemError(std::string_view fileName, std::string_view action, int number) {
  throw GameError(number, std::string(fileName)
                              .append(" cannot be ")
                              .append(action)
                              .append(": ")
                              .append(std::generic_category().message(number)));
}

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
  // Closes it and says whether the system could.
  bool Close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

bool WriteAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(descriptor, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

void FlushFolder(const fs::path& folder) {
  const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.IsOpen()) ::fsync(descriptor.Number());
}

}  // namespace

std::string FolderFiles::Read(std::string_view fileName, std::size_t atMost) const {
  const fs::path path = folder_ / fileName;
  // Without waiting: there may be a pipe of that name that nobody writes into.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.IsOpen()) RaiseSystemError(fileName, "read", errno);
  struct stat kind {};
  if (::fstat(file.Number(), &kind) != 0) RaiseSystemError(fileName, "read", errno);
  if (S_ISDIR(kind.st_mode)) RaiseSystemError(fileName, "read", EISDIR);
  if (!S_ISREG(kind.st_mode)) RaiseSystemError(fileName, "read", EINVAL);
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

void FolderFiles::Replace(std::string_view fileName, std::string_view content) const {
  const fs::path path = folder_ / fileName;
  // A name of its own for every writer: two games in one folder must not share a temporary file.
  std::string temporary = path.string() + ".XXXXXX";
  Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.IsOpen()) RaiseSystemError(fileName, "written", errno);
  constexpr mode_t readableByAll = 0644;
  const bool written = WriteAll(file.Number(), content) &&
                       ::fchmod(file.Number(), readableByAll) == 0 && ::fsync(file.Number()) == 0 &&
                       file.Close() && ::rename(temporary.c_str(), path.c_str()) == 0;
  if (!written) {
    const int number = errno;
    ::unlink(temporary.c_str());
    RaiseSystemError(fileName, "written", number);
  }
  FlushFolder(folder_);  // makes the rename outlast a power cut; the record is whole either way
}

void FolderFiles::SetAside(std::string_view fileName) const {
  const fs::path path = folder_ / fileName;
  const std::string aside = path.string() + ".bad";
  std::string name = aside;
  std::error_code ignored;  // a name that cannot be looked at fails at the renaming
  for (int number = 2; fs::exists(name, ignored); ++number) name = aside + std::to_string(number);
  if (::rename(path.c_str(), name.c_str()) != 0) RaiseSystemError(fileName, "set aside", errno);
}

bool FolderFiles::Exists(std::string_view fileName) const {
  std::error_code ignored;
  return fs::exists(folder_ / fileName, ignored);
}

}  // namespace Parlino
