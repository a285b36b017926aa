// The platform without a window, but with its files in a folder on the disk.
#pragma once

#include <filesystem>
#include <string>
#include <utility>

#include "headless/Headless.h"
#include "platform/FolderFiles.h"

namespace Parlino {

class HeadlessInFolder : public HeadlessPlatform {
 public:
  explicit HeadlessInFolder(std::filesystem::path folder) : onDisk_(std::move(folder)) {}

  std::string ReadFile(std::string_view fileName) override { return onDisk_.Read(fileName); }
  std::string ReplaceFile(std::string_view fileName, std::string_view content) override {
    return onDisk_.Replace(fileName, content);
  }
  std::string SetFileAside(std::string_view fileName) override {
    return onDisk_.SetAside(fileName);
  }
  bool FileExists(std::string_view fileName) override { return onDisk_.Exists(fileName); }

 private:
  FolderFiles onDisk_;
};

}  // namespace Parlino
