#include "tests/support/TranscribedPlatform.h"

#include "engine/state/GameState.h"

namespace Parlino {
namespace {

std::string BoxText(const DialogBox& box) {
  return JoinText({" at (", box.Left, ",", box.Top, ") ", box.Width, " x ", box.Height});
}

std::string FirstText(const RichText::Document& document) {
  const auto* first = std::get_if<RichText::Paragraph>(&document.Blocks.front());
  return first != nullptr && !first->Runs.empty() ? first->Runs.front().Text : "";
}

}  // namespace

void TranscribedPlatform::Begin(bool isOpeningTold) {
  seen_ = isOpeningTold ? LookAtNothing() : LookAtTable();
  chances_ = 0;
  NoteChanges();
  NoteWait(0);
}

void TranscribedPlatform::Note(const std::string& line) {
  NoteChanges();
  transcript.push_back(line);
}

void TranscribedPlatform::NoteChanges() {
  if (seen_.controls.empty()) return;  // nothing has begun
  TableLook now = LookAtTable();
  for (std::string& line : DescribeChanges(seen_, now, detail == Detail::EveryPause))
    if (detail != Detail::StatusBar || line.starts_with("StatusBar"))
      transcript.push_back(std::move(line));
  seen_ = std::move(now);
  NoteDialog();
  NoteHelpAndAbout();
}

void TranscribedPlatform::NoteDialog() {
  const MessageDialogView& dialog = MFormDeluxe;
  if (dialogSeen_ && (!dialog.Visible || dialog.Showings != dialogsSeen_))
    transcript.push_back(dialog.Visible ? "> answered"
                                        : "> " + Quote(dialog.Faces[MessageChoice].Label1));
  if (dialog.Visible && (!dialogSeen_ || dialog.Showings != dialogsSeen_)) {
    transcript.push_back("dialog" +
                         BoxText({dialog.Left, dialog.Top, dialog.Width, dialog.Height}));
    transcript.push_back("  title " + Quote(dialog.Label3) + BoxText(dialog.Label3Place));
    transcript.push_back("  prompt " + Quote(dialog.Label2) + BoxText(dialog.Label2Place));
    transcript.push_back(JoinText({"  picture ", dialog.Picture}) + BoxText(dialog.Picture1));
    for (int face = 0; face <= 2; ++face)
      if (const ButtonFace& button = dialog.Faces[face]; button.Visible)
        transcript.push_back("  button " + Quote(button.Label1) + BoxText(button.Pic1) +
                             (button.Pressed ? " pressed" : "") +
                             (face == dialog.AnswerToMark ? " marked" : ""));
  }
  for (const ButtonFace& button : dialog.Faces)
    if (dialog.Visible && button.Pressed && dialogSeen_)
      transcript.push_back("  pressed " + Quote(button.Label1));
  dialogSeen_ = dialog.Visible;
  dialogsSeen_ = dialog.Showings;
}

void TranscribedPlatform::NoteHelpAndAbout() {
  if (frmHelp.Visible && (!helpSeen_.Visible || frmHelp.Showings != helpSeen_.Showings))
    transcript.push_back("help " + Quote(frmHelp.FileName) + " begins " +
                         Quote(FirstText(frmHelp.rtbHelp)));
  if (!frmHelp.Visible && helpSeen_.Visible) transcript.emplace_back("help hidden");
  if (frmAbout.Loaded && (!aboutSeen_.Loaded || frmAbout.Showings != aboutSeen_.Showings))
    for (const std::string& text : {frmAbout.Caption, frmAbout.lblTitle, frmAbout.lblVersion,
                                    frmAbout.lblDescription, frmAbout.lblDisclaimer})
      transcript.push_back("about " + Quote(text));
  if (!frmAbout.Loaded && aboutSeen_.Loaded) transcript.emplace_back("about gone");
  helpSeen_.Visible = frmHelp.Visible;
  helpSeen_.Showings = frmHelp.Showings;
  aboutSeen_ = frmAbout;
}

// The pause stands behind the last thing that happened before it.
void TranscribedPlatform::NoteWait(std::uint32_t atMostMs) {
  const std::string wait =
      atMostMs == Forever ? "[waits]" : JoinText({"[", static_cast<int>(atMostMs), " ms]"});
  if (transcript.size() == linesAtLastWait_ || transcript.empty())
    transcript.push_back(wait);
  else
    transcript.back() += " " + wait;
  linesAtLastWait_ = transcript.size();
}

void TranscribedPlatform::ProcessEvents(std::uint32_t atMostMs) {
  constexpr int mostChances = 5'000;
  if (++chances_ > mostChances) throw ScriptHasNothingToSay{};
  if (detail == Detail::EveryPause || atMostMs == Forever) {
    NoteChanges();
    if (detail != Detail::StatusBar) NoteWait(atMostMs);
  }
  HeadlessPlatform::ProcessEvents(atMostMs);
}

std::string TranscribedPlatform::ReplaceFile(std::string_view fileName, std::string_view content) {
  const std::string none = HeadlessPlatform::ReplaceFile(fileName, content);
  return unreadFiles.erase(std::string(fileName)) == 0 ? none : std::string(fileName) + ".bad";
}

void TranscribedPlatform::Record(Pieces line) {
  const std::string text = JoinText(line);
  if (detail == Detail::EveryPause || !text.starts_with("sound ")) Note(ShowLineEnds(text));
}

}  // namespace Parlino
