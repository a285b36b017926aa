#include "tests/window/FakeSoundLibrary.h"

#include <cstdarg>
#include <filesystem>

namespace Parlino {
namespace {

bool deviceIsTaken = false;

int Play(std::uint32_t number, const std::string& file) {
  FakeSounds& sounds = TheFakeSounds();
  sounds.asked.push_back(file);
  if (sounds.errors.contains(file)) return sounds.errors[file];
  if (sounds.deviceTakesOne && deviceIsTaken) return DeviceIsBusy;
  deviceIsTaken = true;
  sounds.playing.emplace(number, file);
  return 0;
}

}  // namespace

FakeSounds& TheFakeSounds() {
  static FakeSounds sounds;
  return sounds;
}

}  // namespace Parlino

struct ca_context {};

extern "C" {
int ca_context_create(ca_context** context) {
  *context = new ca_context;
  return 0;
}

int ca_context_set_driver(ca_context*, const char*) {
  return 0;
}

int ca_context_play(ca_context*, std::uint32_t number, ...) {
  std::va_list values;
  va_start(values, number);
  va_arg(values, const char*);  // the name of the property
  const std::filesystem::path file = va_arg(values, const char*);
  va_end(values);
  return Parlino::Play(number, file.filename());
}

int ca_context_cancel(ca_context*, std::uint32_t number) {
  Parlino::TheFakeSounds().playing.erase(number);
  return 0;
}

int ca_context_destroy(ca_context* context) {
  Parlino::TheFakeSounds().playing.clear();
  Parlino::deviceIsTaken = false;
  delete context;
  return 0;
}
}
