// A folder that vanishes for a while, or a record whose name a folder has taken.
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

  // Begins some trouble unless there is some.
  void Begin(ChaosPerson& person);
  // Everything is again as it was before.
  void End();

 private:
  std::filesystem::path folder_;
  std::filesystem::path missed_;  // empty without any trouble
};

}  // namespace Parlino
