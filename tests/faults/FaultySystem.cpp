#include "tests/faults/FaultySystem.h"

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Parlino {
namespace {

bool isCounting = false;
Fault faultInUse;
Calls calls;

// Counts the call and says whether it shall fail; sets errno.
bool CallFails(std::string_view call) {
  if (!isCounting) return false;
  calls.push_back(call);
  errno = faultInUse.number;
  if (faultInUse.call == 0 || calls.size() < faultInUse.call) return false;
  const Manner manner = faultInUse.manner;
  if (manner == Manner::Killed) std::raise(SIGKILL);
  return calls.size() == faultInUse.call || manner == Manner::FromHere || manner == Manner::Nothing;
}

// Some files need not be there.
bool IsFault(const Fault& fault, std::string_view call) {
  if (fault.manner == Manner::Bit || fault.manner == Manner::Nothing) return call == "write";
  return fault.number != ENOENT || call != "lstat";
}

}  // namespace

void BeginFault(const Fault& fault) {
  isCounting = true;
  faultInUse = fault;
  calls.clear();
}

Calls EndFault() {
  isCounting = false;
  return calls;
}

void TryAtEveryCall(const std::vector<Fault>& faults,
                    const std::function<Calls(const Fault&)>& tryOnce) {
  const Calls names = tryOnce({});
  ASSERT_FALSE(names.empty()) << "the calls are not counted";
  for (std::size_t call = 1; call <= names.size(); ++call)
    for (Fault fault : faults) {
      if (!IsFault(fault, names[call - 1])) continue;
      SCOPED_TRACE(testing::Message()
                   << "call " << call << " " << names[call - 1] << ", error " << fault.number
                   << ", manner " << static_cast<int>(fault.manner));
      fault.call = call;
      tryOnce(fault);
    }
}

}  // namespace Parlino

using Parlino::CallFails;

// The linker's names.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
ssize_t __real_write(int file, const void* bytes, size_t count);
int __real_close(int file);

// A call that fails or is the system's. The mode counts only for a file that is made, and `open`
// makes none here.
#define WRAP(Result, Call, Parameters, Arguments)           \
  Result __real_##Call Parameters;                          \
  Result __wrap_##Call Parameters {                         \
    return CallFails(#Call) ? -1 : __real_##Call Arguments; \
  }
WRAP(int, open, (const char* path, int flags, ...), (path, flags, 0600))
WRAP(int, mkostemp, (char* path, int flags), (path, flags))
WRAP(ssize_t, read, (int file, void* bytes, size_t count), (file, bytes, count))
WRAP(int, fchmod, (int file, mode_t mode), (file, mode))
WRAP(int, fsync, (int file), (file))
WRAP(int, fstat, (int file, struct stat* kind), (file, kind))
WRAP(int, lstat, (const char* path, struct stat* kind), (path, kind))
WRAP(int, stat, (const char* path, struct stat* kind), (path, kind))
WRAP(ssize_t, readlink, (const char* path, char* text, size_t length), (path, text, length))
WRAP(int, link, (const char* from, const char* to), (from, to))
WRAP(int, rename, (const char* from, const char* to), (from, to))
WRAP(int, unlink, (const char* path), (path))
#undef WRAP

ssize_t __wrap_write(int file, const void* bytes, size_t count) {
  if (!CallFails("write")) return __real_write(file, bytes, count);
  if (Parlino::faultInUse.manner == Parlino::Manner::Bit) return __real_write(file, bytes, 1);
  return Parlino::faultInUse.manner == Parlino::Manner::Nothing ? 0 : -1;
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
