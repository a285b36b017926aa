#include "tests/chaos/window/DiskTrouble.h"

#include "persistence/DataFiles.h"

namespace Parlino {
namespace {

std::filesystem::path Aside(const std::filesystem::path& path) {
  return path.string() + ".aside";
}

}  // namespace

void DiskTrouble::Begin(ChaosPerson& person) {
  if (!missed_.empty()) return;
  const bool isFolder = person.Once(3);
  missed_ = isFolder ? folder_ : folder_ / FirstRecords[person.NextBelow(4)].file;
  std::filesystem::rename(missed_, Aside(missed_));
  if (!isFolder) std::filesystem::create_directory(missed_);
}

void DiskTrouble::End() {
  if (missed_.empty()) return;
  std::filesystem::remove(missed_);
  std::filesystem::rename(Aside(missed_), missed_);
  missed_.clear();
}

}  // namespace Parlino
