// The files of one folder, read whole and replaced whole; a full path in place of a name is taken
// as it stands. Failures raise a GameError with the system's number and a description that names
// the file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
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
  [[nodiscard]] std::string Read(std::string_view fileName, std::size_t atMost = LongestRecord);

  // Writes a temporary file beside the old one, flushes it to the disk and renames it over the old
  // one, so that whatever happens the file is the old or the new one whole. It keeps the
  // permissions of the old one. A link stays: what lies at its end is replaced or made. An old file
  // that the last Read or SetAside failed on is first set aside: nobody has seen what is in it.
  // Returns the full path that such a file has now, otherwise nothing. Raises for content too long
  // to be read again.
  std::string Replace(std::string_view fileName, std::string_view content);

  // Gives the file a free name: ".bad" is added, or ".bad2", ".bad3" and so on. Behind a link that
  // happens where the file lies. Returns its full path.
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
  std::set<std::string, std::less<>> unread_;  // names of files not read though asked for
};

}  // namespace Parlino
