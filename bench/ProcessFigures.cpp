#include "bench/ProcessFigures.h"

#include <ctime>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace Parlino {

// The sum over all mappings is exact; the faster counter of the kernel lags by some dozen pages.
MemoryFigures MemoryInUse() {
  std::ifstream mappings("/proc/self/smaps_rollup");
  MemoryFigures figures;
  for (std::string word; mappings >> word;) {
    if (word == "Rss:") mappings >> figures.residentKiB;
    if (word == "Anonymous:") mappings >> figures.dataKiB;
  }
  return figures;
}

// Reading the folder itself holds one descriptor open, which is not counted.
int OpenDescriptors() {
  std::error_code error;
  int count = -1;
  for (auto entry = std::filesystem::directory_iterator("/proc/self/fd", error);
       !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
    ++count;
  return count;
}

double ProcessorMs() {
  constexpr double msInSecond = 1000;
  return static_cast<double>(std::clock()) * msInSecond / CLOCKS_PER_SEC;
}

}  // namespace Parlino
