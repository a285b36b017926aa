// The platform with a window. Qt's handlers never call the game: they append to the
// pending events, which ProcessEvents fires when no function of Qt is on the stack, so that
// a handler may leave by an exception.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/FolderFiles.h"
#include "platform/Platform.h"
#include "table/window/TableWindow.h"
#include "table/window/desktop/EventPump.h"
#include "table/window/desktop/Sound.h"
#include "table/window/dialog/MessageWindow.h"
#include "table/window/help/HelpAndAboutWindows.h"
#include "table/window/input/KeyRepeat.h"
#include "table/window/input/KeyUse.h"
#include "table/window/input/PendingEvents.h"

class QDialog;

namespace Parlino {

class QtPlatform : public Platform {
 public:
  // `folder` holds the data files, the help document and the sounds. The application object must be
  // there.
  explicit QtPlatform(const std::filesystem::path& folder);

  void ProcessEvents(std::uint32_t atMostMs) override;
  std::uint32_t Ticks() override;
  double ClockSeconds() override;
  void StartSound(std::string_view fileName) override;
  std::string InputBox(std::string_view prompt, std::string_view title,
                       std::string_view defaultAnswer) override;
  void MsgBox(std::string_view text, std::string_view title, bool critical) override;
  int PromptHeight(std::string_view prompt, int width) override;
  ScreenSize Screen() override;
  void CloseWindow(WindowName window) override;
  std::string ReadFile(std::string_view fileName) override;
  std::string ReplaceFile(std::string_view fileName, std::string_view content) override;
  std::string SetFileAside(std::string_view fileName) override;
  bool FileExists(std::string_view fileName) override;
  std::string ProgramFolder() override;
  std::string ReadDocument(std::string_view fileName) override;
  void StartProgram(std::string_view path) override;

 protected:
  // How the cards move.
  Glides& Motion() { return table_.Motion(); }

  // Lets Qt work while the game waits; all waiting goes through here.
  virtual void WaitForQt(std::uint32_t atMostMs);

 private:
  void ShowModel(std::uint32_t pauseMs);
  void MakeRoomForMessage();
  void FirePendingEvents();
  void ShowAndWait(QDialog& box);
  QWidget* OwnerOfBoxes();

  FolderFiles files_;
  Sound sound_;
  EventPump pump_;
  PendingEvents pending_;
  KeyRepeat keyRepeat_;
  KeyUse keyUse_;
  TableWindow table_;
  std::unique_ptr<MessageWindow> message_;  // made when the first message comes
  HelpAndAboutWindows helpAndAbout_;
};

}  // namespace Parlino
