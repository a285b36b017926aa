#include "tools/selfplay/OutputFile.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace Parlino {

OutputFile::OutputFile(const std::string& name) : name_(name), place_(name), written_(name) {
  std::error_code ignored;
  // A device is written to as it is. It may lead on to a file with something in it, such as a log.
  const bool isDevice = name.starts_with("/dev/") || name.starts_with("/proc/");
  const bool isFile =
      !std::filesystem::exists(name, ignored) || std::filesystem::is_regular_file(name, ignored);
  if (isFile && !isDevice) {
    place_ = std::filesystem::weakly_canonical(name, ignored).string();
    if (place_.empty()) place_ = name;
    written_ = place_ + "." + std::to_string(getpid()) + ".part";
  }
  errno = 0;
  stream_.open(written_, isDevice ? std::ios::binary | std::ios::app : std::ios::binary);
  if (!stream_) RaiseUnwritable();
}

OutputFile::~OutputFile() {
  if (!isInPlace_ && written_ != place_) std::remove(written_.c_str());
}

void OutputFile::Close() {
  errno = 0;
  stream_.close();
  if (!stream_) RaiseUnwritable();
}

void OutputFile::PutInPlace() {
  if (written_ != place_ && std::rename(written_.c_str(), place_.c_str()) != 0) RaiseUnwritable();
  isInPlace_ = true;
}

void OutputFile::RaiseUnwritable() const {
  const std::string reason = errno == 0 ? "" : ": " + std::generic_category().message(errno);
  throw std::runtime_error(name_ + " cannot be written" + reason);
}

}  // namespace Parlino
