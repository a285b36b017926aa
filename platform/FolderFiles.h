// The files of one folder, read whole and replaced whole; a full path instead of a name is used as
// it is. Failures raise a GameError with the system's number and a description that names the file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace Parlino {

// In bytes. No record of ours comes near the first limit, so a longer file is not read into memory;
// a document may be longer, but not of any length.
inline constexpr std::size_t LongestRecord = 1 << 20;
inline constexpr std::size_t LongestDocument = 1 << 26;

class FolderFiles {
 public:
  explicit FolderFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

  [[nodiscard]] const std::filesystem::path& Folder() const { return folder_; }

  // Raises for a file longer than `atMost` bytes.
  [[nodiscard]] std::string Read(std::string_view fileName, std::size_t atMost = LongestRecord);

  // Writes a temporary file in the same folder, flushes it to the disk and renames it over the old
  // one, so that whatever happens the file is either the old or the new one, complete. It keeps the
  // permissions of the old one. A link stays: the file that it leads to is replaced or created. If
  // the last Read or SetAside of the old file failed, that is first set aside, because nothing is
  // known about its content. Returns the full path that such a file has now, otherwise nothing.
  // Raises for content too long to be read again.
  std::string Replace(std::string_view fileName, std::string_view content);

  // Renames the file to a free name: ".bad" is added, or ".bad2", ".bad3" and so on. A link is
  // followed: the file is renamed in its own folder. Returns its full path.
  std::string SetAside(std::string_view fileName);

  [[nodiscard]] bool Exists(std::string_view fileName) const;

 private:
  struct Aside {
    std::filesystem::path path;
    bool hasOldNameToo;
  };
  static Aside KeepAside(std::string_view fileName, const std::filesystem::path& path,
                         std::string_view action);

  std::filesystem::path folder_;
  std::set<std::string, std::less<>> unread_;  // names of files whose last reading failed
};

}  // namespace Parlino
