#include "tests/faults/FaultySystem.h"

#include <cerrno>
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
int __real_mkostemp(char* path, int flags);
ssize_t __real_write(int file, const void* bytes, size_t count);
ssize_t __real_read(int file, void* bytes, size_t count);
int __real_fchmod(int file, mode_t mode);
int __real_fstat(int file, struct stat* kind);
int __real_lstat(const char* path, struct stat* kind);
int __real_stat(const char* path, struct stat* kind);
ssize_t __real_readlink(const char* path, char* text, size_t length);
int __real_close(int file);
int __real_link(const char* from, const char* to);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* path);

// The mode counts only for a file that is made, and none is made by this call.
int __wrap_open(const char* path, int flags, ...) {
  return CallFails("open") ? -1 : __real_open(path, flags, 0600);
}

int __wrap_mkostemp(char* path, int flags) {
  return CallFails("mkostemp") ? -1 : __real_mkostemp(path, flags);
}

ssize_t __wrap_write(int file, const void* bytes, size_t count) {
  if (CallFails("write")) return -1;
  if (CallIs(Manner::Nothing)) return 0;
  const bool takesOneByte = CallIs(Manner::Short) || CallIs(Manner::Bit);
  return __real_write(file, bytes, takesOneByte ? 1 : count);
}

ssize_t __wrap_read(int file, void* bytes, size_t count) {
  return CallFails("read") ? -1 : __real_read(file, bytes, count);
}

int __wrap_fchmod(int file, mode_t mode) {
  return CallFails("fchmod") ? -1 : __real_fchmod(file, mode);
}

int __wrap_fsync(int) {
  return CallFails("fsync") ? -1 : 0;
}

int __wrap_fstat(int file, struct stat* kind) {
  return CallFails("fstat") ? -1 : __real_fstat(file, kind);
}

int __wrap_lstat(const char* path, struct stat* kind) {
  return CallFails("lstat") ? -1 : __real_lstat(path, kind);
}

int __wrap_stat(const char* path, struct stat* kind) {
  return CallFails("stat") ? -1 : __real_stat(path, kind);
}

ssize_t __wrap_readlink(const char* path, char* text, size_t length) {
  return CallFails("readlink") ? -1 : __real_readlink(path, text, length);
}

// As with the system's own, the number is free again even when it fails.
int __wrap_close(int file) {
  const bool fails = CallFails("close");
  const int number = errno;
  const int result = __real_close(file);
  errno = number;
  return fails ? -1 : result;
}

int __wrap_link(const char* from, const char* to) {
  return CallFails("link") ? -1 : __real_link(from, to);
}

int __wrap_rename(const char* from, const char* to) {
  return CallFails("rename") ? -1 : __real_rename(from, to);
}

int __wrap_unlink(const char* path) {
  return CallFails("unlink") ? -1 : __real_unlink(path);
}
}
// NOLINTEND(bugprone-reserved-identifier)
