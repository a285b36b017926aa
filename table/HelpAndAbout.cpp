#include "table/HelpAndAbout.h"

#include <cerrno>

#include "engine/state/ErrorReport.h"
#include "engine/state/Errors.h"
#include "platform/Platform.h"
#include "richtext/Reader.h"
#include "table/SystemInfo.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

// If the new text cannot be read, the previous one stays.
void LoadHelp(const std::string& path) {
  RichText::Document text = RichText::ReadDocument(ThePlatform().ReadDocument(path));
  if (text.Blocks.empty()) throw GameError(EINVAL, JoinText({path, " holds no text to show"}));
  frmHelp.rtbHelp = std::move(text);
  frmHelp.FileName = path;
}

// What the captions say before the load event fills them.
void LoadAbout() {
  frmAbout.lblDescription = "Parlino - a  challenging and enjoyable card game .";
  frmAbout.lblDisclaimer =
      "Just for fun: no stakes, no hurry, and robots that never peek at your cards.";
  frmAbout.Loaded = true;
  frmAbout_Form_Load();
}

}  // namespace

void MnuRules_Click() {
  ReportErrors("MnuRules_Click", [] {
    const std::string path = EndInSeparator(ThePlatform().ProgramFolder()).append(HelpFile);
    if (!ThePlatform().FileExists(path)) {
      ThePlatform().MsgBox("Helpfile is not available", ApplicationTitle, false);
      return;
    }
    LoadHelp(path);
    frmHelp.Visible = true;
    ++frmHelp.Showings;
  });
}

void btnClose_Click() {
  frmHelp.Visible = false;
}

void MnuAbout_Click() {
  if (!frmAbout.Loaded) LoadAbout();
  ++frmAbout.Showings;
}

void frmAbout_Form_Load() {
  frmAbout.Caption = JoinText({"About ", ApplicationTitle});
  frmAbout.lblVersion =
      VersionCaption(PARLINO_VERSION_MAJOR, PARLINO_VERSION_MINOR, PARLINO_VERSION_REVISION);
  frmAbout.lblTitle = ApplicationTitle;
}

void cmdOK_Click() {
  frmAbout = {};
}

void cmdSysInfo_Click() {
  StartSysInfo();
}

std::string EndInSeparator(std::string path) {
  if (!path.ends_with('\\') && !path.ends_with('/')) path += '\\';
  return path;
}

std::string VersionCaption(int major, int minor, int revision) {
  return JoinText({"Version ", major, ".", minor, ".", revision});
}

}  // namespace Parlino
