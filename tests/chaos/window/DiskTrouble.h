// A folder that is missing for a while, or a record with a folder in its place.
#pragma once

#include <filesystem>

#include "tests/chaos/ChaosPerson.h"

namespace Parlino {

class DiskTrouble {
 public:
  explicit DiskTrouble(std::filesystem::path folder) : folder_(std::move(folder)) {}
  DiskTrouble(const DiskTrouble&) = delete;
  DiskTrouble& operator=(const DiskTrouble&) = delete;
  ~DiskTrouble() { End(); }

  // Causes some trouble, unless there is some already.
  void Begin(ChaosPerson& person);
  // Restores everything as it was before.
  void End();

 private:
  std::filesystem::path folder_;
  std::filesystem::path missed_;  // empty while there is no trouble
};

}  // namespace Parlino
