// A folder of a test's own, which goes with it: several tests and several people may run at once.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace Parlino {

class TemporaryFolder {
 public:
  // A disk in memory takes hundreds of new folders in no time; any other will do.
  TemporaryFolder() {
    namespace fs = std::filesystem;
    const fs::path memory = "/dev/shm";
    const fs::path place = ::access(memory.c_str(), W_OK) == 0 ? memory : fs::temp_directory_path();
    std::string name = place / "parlino-test-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder can be made");
    path_ = name;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace Parlino
