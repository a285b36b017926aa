// The platform without a window: time is virtual, files are kept in memory, and a script plays the
// person. A pause takes no real time but goes through the same states as at the table.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "engine/state/JoinText.h"
#include "platform/Platform.h"

namespace Parlino {

// Thrown when the game waits for the person and the script has nothing left to do. It is not a
// std::exception, so that the game's error reports let it pass.
struct ScriptHasNothingToSay {};

class HeadlessPlatform : public Platform {
 public:
  // Starts with the data files of a new game. Ticks and clock start at fixed values, so that runs
  // can be repeated.
  HeadlessPlatform();

  // Called whenever the game processes events, with the time that it would wait. The script looks
  // at the table as a person would and fires events through the table's doors.
  std::function<void(std::uint32_t atMostMs)> script = [](std::uint32_t) {};
  // How often the game may wait in vain before the script counts as finished.
  int mostIdleCalls = 100;
  // Answers a text-input box; if it is not set, the default is accepted with OK.
  std::function<std::string(std::string_view prompt, std::string_view title,
                            std::string_view defaultAnswer)>
      answerInputBox;
  // Called for each plain message box.
  std::function<void(std::string_view text)> onMsgBox = [](std::string_view) {};

  // Keyed by the name under which they are asked for, a plain name or a full path.
  std::map<std::string, std::string, std::less<>> files;
  bool filesCanBeWritten = true;
  std::string fileThatCannotBeWritten;
  std::string programFolder = "/parlino/";

  // The registry below the root RegistryLocalMachine: its values by key and name, and the rights
  // with which a key can be opened.
  struct ScriptedValue {
    std::uint32_t type;
    std::string bytes;
  };
  std::map<std::pair<std::string, std::string>, ScriptedValue> registry;
  std::uint32_t registryRights = RegistryFullAccess;
  bool registryRaises = false;  // whether reading a value raises an error

  // What was asked of the platform, in order, one line each; kept only while `keepsRecord` is set.
  std::vector<std::string> record;
  bool keepsRecord = false;

  std::uint32_t ticks = 0;
  std::uint32_t clockAtStart = 43'200'000;  // milliseconds since midnight
  // Seconds since midnight, in place of that clock if it is set.
  std::function<double()> clock;
  int depth = 0;  // of ProcessEvents inside ProcessEvents
  int deepest = 0;

  void ProcessEvents(std::uint32_t atMostMs) override;
  std::uint32_t Ticks() override { return ticks; }
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
  std::string ProgramFolder() override { return programFolder; }
  std::string ReadDocument(std::string_view fileName) override { return ReadFile(fileName); }
  std::optional<RegistryKey> OpenRegistryKey(std::uint32_t root, std::string_view name,
                                             std::uint32_t rights) override;
  std::optional<RegistryValue> ReadRegistryValue(RegistryKey key, std::string_view name,
                                                 std::span<char> buffer) override;
  void CloseRegistryKey(RegistryKey key) override;
  // A program can be started if it is one of the files.
  void StartProgram(std::string_view path) override;

 protected:
  // Adds a line to the record.
  virtual void Record(Pieces line);

 private:
  void WaitForScript();

  int idleCalls_ = 0;
  std::map<RegistryKey, std::string> openKeys_;
  RegistryKey lastKey_ = 0;
};

}  // namespace Parlino
