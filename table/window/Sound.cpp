#include "table/window/Sound.h"

#include <cstdint>

#include <QLibrary>

#include "table/CardDisplay.h"

namespace Parlino {
namespace {

constexpr std::uint32_t OnlySound = 1;
constexpr int FileNotFound = -9;

// The few entries of the library that are needed. It is opened by name, so that the program also
// runs, in silence, where it is not installed.
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

// The driver below complains on the terminal about a machine without a sound device.
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

void Sound::Start(std::string_view fileName) {
  // A device may have come since: every deal asks once more.
  if (fileName == ShuffleSound) isSilent_ = false;
  if (isSilent_) return;
  if (context_ == nullptr && !Open()) {
    isSilent_ = true;
    return;
  }
  TheLibrary().cancel(context_, OnlySound);
  const std::string path = folder_ / fileName;
  const int result = TheLibrary().play(context_, OnlySound, "media.filename", path.c_str(),
                                       static_cast<const char*>(nullptr));
  if (result == 0 || result == FileNotFound) return;
  // Asking for a device before every card costs time.
  isSilent_ = true;
  Close();
}

}  // namespace Parlino
