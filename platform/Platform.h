// The seam to the outside world: everything the game needs that is not the game. The window
// implements it once, the headless platform with virtual time a second time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Parlino {

// A length of time for ProcessEvents that ends only with an event.
inline constexpr std::uint32_t Forever = 0xFFFFFFFF;

// The windows of the program, in the order in which the end of the program closes them.
enum class WindowName { frmAbout, MFormDeluxe, FrmMain, frmHelp };

struct ScreenSize {
  int width;   // twips
  int height;  // twips
};

class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  // Shows what has changed in the table model, sleeps until an event arrives or `atMostMs`
  // milliseconds have passed, and raises the table's events that have arrived. Handlers run inside
  // this call, so it may leave by HandAbandoned or ProgramEnded.
  virtual void ProcessEvents(std::uint32_t atMostMs) = 0;

  // Milliseconds since some moment in the past; wraps after 2^32.
  virtual std::uint32_t Ticks() = 0;
  // Seconds since midnight, with fractions.
  virtual double ClockSeconds() = 0;

  // Starts a sound file of the program's folder and returns at once. A sound still playing is cut
  // off; a sound that cannot be played is passed over.
  virtual void StartSound(std::string_view fileName) = 0;

  // Asks for a line of text and waits. OK answers with the text, Cancel with empty text.
  virtual std::string InputBox(std::string_view prompt, std::string_view title,
                               std::string_view defaultAnswer) = 0;
  // A plain message box with an OK button; `critical` adds the critical-error icon. Waits.
  virtual void MsgBox(std::string_view text, std::string_view title, bool critical) = 0;

  // The height in twips that the message dialog's prompt takes when wrapped at `width` twips.
  virtual int PromptHeight(std::string_view prompt, int width) = 0;
  virtual ScreenSize Screen() = 0;

  // Closes a window for good, without a question; a window that was never shown is passed over.
  virtual void CloseWindow(WindowName window) = 0;

  // Files of the program's folder, by name. Failures raise a GameError whose number is the
  // system's and whose description names the file.
  virtual std::string ReadFile(std::string_view fileName) = 0;
  // Replaces the file whole or leaves it as it was.
  virtual void ReplaceFile(std::string_view fileName, std::string_view content) = 0;
  // Renames the file so that nothing overwrites it: ".bad" is added, and a number where that name
  // is taken.
  virtual void SetFileAside(std::string_view fileName) = 0;
  virtual bool FileExists(std::string_view fileName) = 0;
};

// The platform in use. Set once, before anything else of the game runs.
inline Platform* PlatformInUse = nullptr;

inline void UsePlatform(Platform& platform) {
  PlatformInUse = &platform;
}
inline Platform& ThePlatform() {
  return *PlatformInUse;
}

}  // namespace Parlino
