// The seam between the game and the outside world: everything that the game needs and is not part
// of it. There are two implementations: the window, and the headless platform with virtual time.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Parlino {

// The title of the table window and of every plain box.
inline constexpr std::string_view ApplicationTitle = "Parlino";

// A time for ProcessEvents that only an event ends.
inline constexpr std::uint32_t Forever = 0xFFFFFFFF;

// The windows of the program, in the order in which they are closed when it ends.
enum class WindowName { frmAbout, MFormDeluxe, FrmMain, frmHelp };

struct ScreenSize {
  int width;   // twips
  int height;  // twips
};

// Numbers of the operating system's registry.
inline constexpr std::uint32_t RegistryLocalMachine = 0x80000002;  // a root
inline constexpr std::uint32_t RegistryFullAccess = 0xF003F;       // rights to a key
inline constexpr std::uint32_t RegistryString = 1;                 // the type of a value

using RegistryKey = std::uintptr_t;

struct RegistryValue {
  std::uint32_t type;
  std::uint32_t length;  // bytes of the buffer that the value fills
};

class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  // Shows what has changed in the table model, sleeps until an event arrives or `atMostMs`
  // milliseconds have passed, and fires the table's events that have arrived. Handlers run inside
  // this call, so it may throw HandAbandoned or ProgramEnded.
  virtual void ProcessEvents(std::uint32_t atMostMs) = 0;

  // Milliseconds since some moment in the past; wraps after 2^32.
  virtual std::uint32_t Ticks() = 0;
  // Seconds since midnight, with fractions.
  virtual double ClockSeconds() = 0;

  // Starts a sound file from the program's folder and returns at once. A sound still playing is cut
  // off; a sound that cannot be played is skipped.
  virtual void StartSound(std::string_view fileName) = 0;

  // Asks for a line of text and waits. Returns the text on OK, empty text on Cancel.
  virtual std::string InputBox(std::string_view prompt, std::string_view title,
                               std::string_view defaultAnswer) = 0;
  // A plain message box with an OK button; `critical` adds the critical-error icon. Waits.
  virtual void MsgBox(std::string_view text, std::string_view title, bool critical) = 0;

  // The height in twips that the message dialog's prompt takes when wrapped at `width` twips.
  virtual int PromptHeight(std::string_view prompt, int width) = 0;
  virtual ScreenSize Screen() = 0;

  // Closes a window for good, without asking; a window that was never shown is ignored.
  virtual void CloseWindow(WindowName window) = 0;

  // The full path of the program's folder, with the separator of the platform at its end.
  virtual std::string ProgramFolder() = 0;

  // Files: a plain name is a file in the program's folder, a full path is used as it is. Failures
  // raise a GameError whose number is the system's and whose description names the file.
  virtual std::string ReadFile(std::string_view fileName) = 0;
  // The same for a file that may be much longer than a record.
  virtual std::string ReadDocument(std::string_view fileName) = 0;
  // Replaces the file completely or leaves it as it was. A file that could not be read is first set
  // aside. Returns the full path that such a file has now, otherwise nothing.
  virtual std::string ReplaceFile(std::string_view fileName, std::string_view content) = 0;
  // Renames the file so that nothing overwrites it: ".bad" is added, and a number if that name is
  // taken. Returns its full path.
  virtual std::string SetFileAside(std::string_view fileName) = 0;
  virtual bool FileExists(std::string_view fileName) = 0;

  // A key that is opened must be closed. A platform without a registry opens none.
  virtual std::optional<RegistryKey> OpenRegistryKey(std::uint32_t /*root*/,
                                                     std::string_view /*name*/,
                                                     std::uint32_t /*rights*/) {
    return std::nullopt;
  }
  // Nothing when there is no such value or it is longer than the buffer.
  virtual std::optional<RegistryValue> ReadRegistryValue(RegistryKey /*key*/,
                                                         std::string_view /*name*/,
                                                         std::span<char> /*buffer*/) {
    return std::nullopt;
  }
  virtual void CloseRegistryKey(RegistryKey /*key*/) {}

  // Starts a program in a normal window with the focus and does not wait for it. Raises a GameError
  // when it cannot be started.
  virtual void StartProgram(std::string_view path) = 0;
};

// The platform in use. Set once, before the rest of the game runs.
inline Platform* PlatformInUse = nullptr;

inline void UsePlatform(Platform& platform) {
  PlatformInUse = &platform;
}
inline Platform& ThePlatform() {
  return *PlatformInUse;
}

}  // namespace Parlino
