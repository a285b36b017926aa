#include "table/window/desktop/Sound.h"

#include <QLibrary>

#include "table/CardDisplay.h"

namespace Parlino {
namespace {

constexpr int NoLibrary = -1;
constexpr int DeviceIsBusy = -12;

// The few functions of the library that are needed. It is loaded by name, so that the program also
// runs, without sound, where it is not installed.
class SoundLibrary {
 public:
  using Create = int (*)(ca_context** context);
  using SetDriver = int (*)(ca_context* context, const char* driver);
  using Play = int (*)(ca_context* context, std::uint32_t id, ...);
  using Cancel = int (*)(ca_context* context, std::uint32_t id);
  using Destroy = int (*)(ca_context* context);

  [[nodiscard]] bool IsComplete() const {
    return create != nullptr && setDriver != nullptr && play != nullptr && cancel != nullptr &&
           destroy != nullptr;
  }

 private:
  template <class Entry>
  Entry Find(const char* name) {
    return reinterpret_cast<Entry>(file_.resolve(name));
  }

  QLibrary file_{"canberra", 0};

 public:
  const Create create = Find<Create>("ca_context_create");
  const SetDriver setDriver = Find<SetDriver>("ca_context_set_driver");
  const Play play = Find<Play>("ca_context_play");
  const Cancel cancel = Find<Cancel>("ca_context_cancel");
  const Destroy destroy = Find<Destroy>("ca_context_destroy");
};

const SoundLibrary& TheLibrary() {
  static const SoundLibrary library;
  return library;
}

void IgnoreMessage(const char*, int, const char*, int, const char*, ...) {}

// Otherwise ALSA prints errors to the terminal on a machine without a sound device.
void SilenceDriver() {
  using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
  QLibrary driver("asound", 2);
  const auto setHandler =
      reinterpret_cast<int (*)(Handler)>(driver.resolve("snd_lib_error_set_handler"));
  if (setHandler != nullptr) setHandler(IgnoreMessage);
}

}  // namespace

Sound::~Sound() {
  Close();
}

void Sound::Close() {
  if (context_ != nullptr) TheLibrary().destroy(context_);
  context_ = nullptr;
}

bool Sound::Open() {
  if (!TheLibrary().IsComplete() || TheLibrary().create(&context_) != 0) return false;
  SilenceDriver();
  // This driver has a thread only while a sound is playing.
  TheLibrary().setDriver(context_, "alsa");
  return true;
}

int Sound::Play(const std::string& path) {
  if (context_ == nullptr && !Open()) return NoLibrary;
  const std::uint32_t next = playing_ == 1 ? 2 : 1;
  const int result = TheLibrary().play(context_, next, "media.filename", path.c_str(),
                                       static_cast<const char*>(nullptr));
  if (result != 0) return result;
  TheLibrary().cancel(context_, playing_);
  playing_ = next;
  return result;
}

void Sound::Start(std::string_view fileName) {
  // A device may have been connected since then, and a file may have been repaired.
  if (fileName == ShuffleSound) passedOver_.clear();
  if (passedOver_.contains(fileName)) return;
  const std::filesystem::path path = folder_ / fileName;
  std::error_code ignored;
  // The library would wait for somebody to write to a pipe.
  if (std::filesystem::is_regular_file(path, ignored)) {
    int result = Play(path);
    if (result == DeviceIsBusy) {
      // The device may take only one sound. Closing the library waits until it is free again.
      Close();
      result = Play(path);
    }
    if (result == 0) return;
  }
  // Asking for a device before every card takes time.
  passedOver_.emplace(fileName);
}

}  // namespace Parlino
