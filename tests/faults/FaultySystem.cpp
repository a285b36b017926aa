#include "tests/faults/FaultySystem.h"

#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace Parlino {
namespace {

FaultySystem* systemInUse = nullptr;

bool CallFails(std::string_view call) {
  return systemInUse != nullptr && systemInUse->Fails(call);
}

bool CallIs(Manner manner) {
  return systemInUse != nullptr && systemInUse->IsAt(manner);
}

}  // namespace

FaultySystem::FaultySystem(const Fault& fault) : fault_(fault) {
  systemInUse = this;
}

FaultySystem::~FaultySystem() {
  Mend();
}

void FaultySystem::Mend() {
  systemInUse = nullptr;
}

bool FaultySystem::IsAt(Manner manner) const {
  const bool isThere =
      manner == Manner::Nothing ? calls_.size() >= fault_.call : calls_.size() == fault_.call;
  return fault_.manner == manner && isThere;
}

bool FaultySystem::Fails(std::string_view call) {
  calls_.push_back(call);
  errno = fault_.number;
  if (fault_.call == 0 || calls_.size() < fault_.call) return false;
  if (fault_.manner == Manner::Killed) std::raise(SIGKILL);
  if (fault_.manner == Manner::FromHere) return true;
  if (fault_.manner == Manner::Short) return call == "write" && calls_.size() > fault_.call;
  return fault_.manner == Manner::Once && calls_.size() == fault_.call;
}

}  // namespace Parlino

using Parlino::CallFails;
using Parlino::CallIs;
using Parlino::Manner;

// The linker's names.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
int __real_open(const char* path, int flags, ...);
ssize_t __real_write(int file, const void* bytes, size_t count);
int __real_close(int file);

// A call that fails or is the system's.
#define WRAP(Result, Call, Parameters, Arguments)           \
  Result __real_##Call Parameters;                          \
  Result __wrap_##Call Parameters {                         \
    return CallFails(#Call) ? -1 : __real_##Call Arguments; \
  }
WRAP(int, mkostemp, (char* path, int flags), (path, flags))
WRAP(ssize_t, read, (int file, void* bytes, size_t count), (file, bytes, count))
WRAP(int, fchmod, (int file, mode_t mode), (file, mode))
WRAP(int, fstat, (int file, struct stat* kind), (file, kind))
WRAP(int, lstat, (const char* path, struct stat* kind), (path, kind))
WRAP(int, stat, (const char* path, struct stat* kind), (path, kind))
WRAP(ssize_t, readlink, (const char* path, char* text, size_t length), (path, text, length))
WRAP(int, link, (const char* from, const char* to), (from, to))
WRAP(int, rename, (const char* from, const char* to), (from, to))
WRAP(int, unlink, (const char* path), (path))
#undef WRAP

// The mode counts only for a file that is made, and none is made by this call.
int __wrap_open(const char* path, int flags, ...) {
  return CallFails("open") ? -1 : __real_open(path, flags, 0600);
}

ssize_t __wrap_write(int file, const void* bytes, size_t count) {
  if (CallFails("write")) return -1;
  if (CallIs(Manner::Nothing)) return 0;
  const bool takesOneByte = CallIs(Manner::Short) || CallIs(Manner::Bit);
  return __real_write(file, bytes, takesOneByte ? 1 : count);
}

int __wrap_fsync(int) {
  return CallFails("fsync") ? -1 : 0;
}

// As with the system's own, the number is free again even when it fails.
int __wrap_close(int file) {
  const bool fails = CallFails("close");
  const int number = errno;
  const int result = __real_close(file);
  errno = number;
  return fails ? -1 : result;
}
}
// NOLINTEND(bugprone-reserved-identifier)
