// Sounds of the program's folder, played by the desktop's sound library where there is one.
#pragma once

#include <filesystem>
#include <string_view>

struct ca_context;

namespace Parlino {

class Sound {
 public:
  explicit Sound(std::filesystem::path folder) : folder_(std::move(folder)) {}
  Sound(const Sound&) = delete;
  Sound& operator=(const Sound&) = delete;
  ~Sound();

  // Starts the file and returns; the sound still playing is cut off. The library is looked for at
  // the first call. Without it, or without a sound device, this and all later calls do nothing.
  void Start(std::string_view fileName);

 private:
  bool Open();
  void Close();

  std::filesystem::path folder_;
  ca_context* context_ = nullptr;
  bool isSilent_ = false;
};

}  // namespace Parlino
