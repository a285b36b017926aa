// The platform without a window that writes down what a player sees and hears.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "headless/Headless.h"
#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "tests/support/TableLook.h"

namespace Parlino {

class TranscribedPlatform : public HeadlessPlatform {
 public:
  // One line for each change of the table, sound, box, file and pause, in their order.
  std::vector<std::string> transcript;
  // Whether the table and the sounds are written down at every pause, only the table and only when
  // the player is waited for, or of the table nothing but the status bar.
  enum class Detail { EveryPause, EveryWait, StatusBar };
  Detail detail = Detail::EveryPause;
  // Files that could not be read at the start and are kept under another name when they are
  // replaced.
  std::set<std::string, std::less<>> unreadFiles;

  // To be called when the game is set up. What the table looks like then is written down, or only
  // kept in mind.
  void Begin(bool isOpeningTold);
  // Adds a line, after what has changed before.
  void Note(const std::string& line);

  void ProcessEvents(std::uint32_t atMostMs) override;
  std::string ReplaceFile(std::string_view fileName, std::string_view content) override;

 protected:
  void Record(Pieces line) override;

 private:
  void NoteChanges();
  void NoteDialog();
  void NoteHelpAndAbout();
  void NoteWait(std::uint32_t atMostMs);

  TableLook seen_;
  bool dialogSeen_ = false;
  int dialogsSeen_ = 0;
  HelpWindowView helpSeen_;
  AboutWindowView aboutSeen_;
  std::size_t linesAtLastWait_ = 0;
  int chances_ = 0;
};

}  // namespace Parlino
