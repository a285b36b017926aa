// A library with the name and the functions of the desktop's sound library, which the program finds
// in place of the real one. The sounds it plays never end by themselves.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Parlino {

inline constexpr int DeviceIsBusy = -12;

struct FakeSounds {
  std::map<std::string, int> errors;  // by file name
  bool deviceTakesOne = false;        // and keeps it until its library is closed
  std::vector<std::string> asked;     // file names
  std::multimap<std::uint32_t, std::string> playing;
};

FakeSounds& TheFakeSounds();

}  // namespace Parlino
