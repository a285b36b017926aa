// Feeds whatever libFuzzer thinks up to the game as each of its data files, and checks that it is
// refused whole or stays the same.
#include <cstdio>
#include <cstdlib>

#include "tests/support/RecordFaults.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t count) {
  using namespace Parlino;
  const std::string_view content(reinterpret_cast<const char*>(bytes), count);
  for (const RecordDoor& door : RecordDoors) {
    const std::string fault = TryRecord(door, content).fault;
    if (fault.empty()) continue;
    std::fprintf(stderr, "fault of %s: %s\n", door.file.data(), fault.c_str());
    std::abort();
  }
  return 0;
}
