// The files of one folder, read whole and replaced whole. Failures raise a GameError with the
// system's number and a description that names the file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Parlino {

class FolderFiles {
 public:
  explicit FolderFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

  [[nodiscard]] std::string Read(std::string_view fileName) const;

  // Writes a temporary file in the same folder, flushes it to the disk and renames it over the old
  // one, so that whatever happens the file is the old or the new one whole.
  void Replace(std::string_view fileName, std::string_view content) const;

  // Renames the file to a free name: ".bad" is added, or ".bad2", ".bad3" and so on.
  void SetAside(std::string_view fileName) const;

  [[nodiscard]] bool Exists(std::string_view fileName) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace Parlino
