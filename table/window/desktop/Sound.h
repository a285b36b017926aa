// Plays sounds from the program's folder with the desktop's sound library, if there is one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <string_view>

struct ca_context;

namespace Parlino {

class Sound {
 public:
  explicit Sound(std::filesystem::path folder) : folder_(std::move(folder)) {}
  Sound(const Sound&) = delete;
  Sound& operator=(const Sound&) = delete;
  ~Sound();

  // Starts the file and returns; a sound that is still playing is cut off. A file that cannot be
  // played, for whatever reason, cuts nothing off and is skipped until the next deal, which begins
  // with ShuffleSound. The library is loaded at the first call.
  void Start(std::string_view fileName);

 private:
  bool Open();
  void Close();
  // Cuts off the previous sound only if this one has started. Returns the library's error number.
  int Play(const std::string& path);

  std::filesystem::path folder_;
  ca_context* context_ = nullptr;
  std::uint32_t playing_ = 0;
  std::set<std::string, std::less<>> passedOver_;
};

}  // namespace Parlino
