// The files of one folder, read whole and replaced whole; a full path in place of a name is taken
// as it stands. Failures raise a GameError with the system's number and a description that names
// the file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace Parlino {

// No record of ours comes near this, in bytes; a longer file is not read into memory to find that
// out. A document may be longer, yet not without end.
inline constexpr std::size_t LongestRecord = 1 << 20;
inline constexpr std::size_t LongestDocument = 1 << 26;

class FolderFiles {
 public:
  explicit FolderFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

  [[nodiscard]] const std::filesystem::path& Folder() const { return folder_; }

  // Raises for a file longer than `atMost` bytes.
  [[nodiscard]] std::string Read(std::string_view fileName,
                                 std::size_t atMost = LongestRecord) const;

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
