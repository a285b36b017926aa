// The help and the about window: their models, and the procedures that open and close them. Neither
// is modal: the game goes on while they are open.
#pragma once

#include <string>
#include <string_view>

#include "richtext/RichText.h"

namespace Parlino {

inline constexpr std::string_view HelpFile = "ParlinoHelp.rtf";

struct HelpWindowView {
  bool Visible = false;
  std::string FileName;  // the full path of the document, which names it when the model is examined
  RichText::Document rtbHelp;  // what the text box shows
  int Showings = 0;            // each brings new text and brings the window to the front
};

inline HelpWindowView frmHelp;

struct AboutWindowView {
  bool Loaded = false;  // loaded and shown are the same for this window
  std::string Caption;
  std::string lblTitle;
  std::string lblVersion;
  std::string lblDescription;
  std::string lblDisclaimer;
  int Showings = 0;  // each brings the window to the front
};

inline AboutWindowView frmAbout;

// "Rules and Help": loads the help document afresh and shows it, or says that it is not available.
// A document that cannot be read is reported, and the window stays as it was. Reports its own
// errors.
void MnuRules_Click();

// Hides the help window; its document stays loaded.
void btnClose_Click();

// "About": shows the about window, which is loaded first if it is not.
void MnuAbout_Click();

// The load event of the about window: fills its captions.
void frmAbout_Form_Load();

// Unloads the about window.
void cmdOK_Click();

// Starts the system-information tool.
void cmdSysInfo_Click();

// The path with a separator at its end: "\" is added unless it ends in "\" or "/".
std::string EndInSeparator(std::string path);

// "Version 2.0.5" for 2, 0 and 5.
std::string VersionCaption(int major, int minor, int revision);

}  // namespace Parlino
