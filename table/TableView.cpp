#include "table/TableView.h"

#include "platform/Platform.h"
#include "table/MessageDialog.h"
#include "table/SeatControls.h"

namespace Parlino {
namespace {

constexpr TablePoint FirstCardPlace{3960, 6840};

constexpr std::string_view Introduction =
    "If this is your first time playing you may wish to look at the Help file, enter your name "
    "and change the robots names to those of your friends, or enemies.If not just press F2 , or go "
    "to the Play menu and New Game to deal the cards. Happy Playing.";

void OpenBiddingPanel() {
  for (int number = 1; number <= TricksInHand; ++number) {
    BidButton& button = Table.LblBids[number];
    button.Visible = true;
    button.Caption = JoinText({number});
    button.ToolTipText = JoinText({"Click to make ", number, number == 1 ? " trick" : " tricks"});
  }
}

void OpenScoreFrame() {
  Table.FramScores.Visible = true;
  for (const auto& [bid, tricks] : CountsInFrame)
    for (Label* count : {&bid, &tricks}) {
      count->Visible = true;
      count->Caption = "0";
    }
}

void OpenWelcomePanel() {
  Table.lblTitle.Caption = "Welcome to Parlino";
  Table.LblIntro.Caption = Introduction;
  Table.CmdDontShow.Caption = "Click here for this  screen not show in future";
  for (Label* part : {&Table.lblTitle, &Table.LblIntro, &Table.CmdDontShow}) part->Visible = true;
}

void OpenStatusBar() {
  Table.StatusBar1[1].Caption = JoinText({"Target Points:-  ", TargetPoints});
  Table.StatusBar1[2].Caption = "Your Team Points";
  Table.StatusBar1[3].Caption = "Their Team Points:-";
  for (Label& panel : Table.StatusBar1) panel.Visible = true;
}

}  // namespace

void OpenTable() {
  Table = {};
  PictureBox& firstCard = Table.Cds[1];
  firstCard.Visible = true;
  firstCard.Picture = PictureBackUpright;
  firstCard.Place = FirstCardPlace;
  constexpr TablePoint namePlaces[] = {{960, 8400}, {240, 2040}, {2280, 720}, {8160, 2160}};
  for (int seat = 0; seat < SeatsAtTable; ++seat) {
    Table.LblName[seat].Visible = true;
    Table.LblName[seat].Place = namePlaces[seat];
  }
  Table.LblInfo.Visible = true;
  Table.LblTrumps.Caption = "Trumps";
  Table.imgtrumps.Visible = true;
  Table.LstCardsPlayed.Visible = true;
  OpenBiddingPanel();
  OpenScoreFrame();
  OpenWelcomePanel();
  OpenStatusBar();
}

void SetCaption(Label& label, Pieces pieces) {
  JoinInto(label.Caption, pieces);
  NoteChange(label);
}

void SetMousePointer(PictureBox& box, Integer picture) {
  if (box.MousePointer == picture) return;
  box.MousePointer = picture;
  NoteChange(box);
}

void SetToolTip(PictureBox& box, Pieces pieces) {
  JoinInto(box.ToolTipText, pieces);
  NoteChange(box);
}

void CreateCardPictures() {
  for (int card = 2; card <= CardsInPack; ++card) {
    Table.Cds[card] = Table.Cds[1];
    Table.Cds[card].Visible = false;
    NoteChange(Table.Cds[card]);
  }
}

void ListBox::Clear() {
  text_.clear();
  ends_.clear();
}

std::string_view ListBox::Line(int place) const {
  if (place < 0 || place >= Count()) RaiseIndexError(place, 0, Count() - 1);
  const auto line = static_cast<std::size_t>(place);
  const std::size_t start = line == 0 ? 0 : ends_[line - 1];
  return std::string_view(text_).substr(start, ends_[line] - start);
}

void AddLine(ListBox& list, Pieces pieces) {
  for (const TextPiece& piece : pieces) list.Append(piece.Text());
  list.EndLine();
  NoteChange(list);
}

void ClearLines(ListBox& list) {
  list.Clear();
  NoteChange(list);
}

void UnloadAllForms() {
  for (const WindowName window :
       {WindowName::frmAbout, WindowName::MFormDeluxe, WindowName::FrmMain, WindowName::frmHelp})
    ThePlatform().CloseWindow(window);
  // This shuts the doors: no event is fired any more.
  Hide(Table.FrmMain);
  MFormDeluxe.Visible = false;
  throw ProgramEnded{};
}

}  // namespace Parlino
