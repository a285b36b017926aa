#include "tools/selfplay/OutputFile.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace Parlino {
namespace {

// Also what is not there yet. A device is none, although it may lead on to one.
bool IsOrdinaryFile(const std::string& name) {
  if (name.starts_with("/dev/") || name.starts_with("/proc/")) return false;
  std::error_code ignored;
  return !std::filesystem::exists(name, ignored) || std::filesystem::is_regular_file(name, ignored);
}

}  // namespace

OutputFile::OutputFile(const std::string& name) : name_(name), place_(name), written_(name) {
  if (IsOrdinaryFile(name)) {
    std::error_code ignored;
    place_ = std::filesystem::weakly_canonical(name, ignored).string();
    if (place_.empty()) place_ = name;
    written_ = place_ + "." + std::to_string(getpid()) + ".part";
  }
  errno = 0;
  // A device may lead on to a log, which keeps what is in it.
  const auto mode = written_ == place_ ? std::ios::app : std::ios::trunc;
  stream_.open(written_, std::ios::binary | mode);
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
