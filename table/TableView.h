// The model of the table: every control that the engine drives, with the properties it reads and
// writes, and the operations on them. The engine never draws. A window mirrors this model; a run
// without a window only has the model.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/state/GameState.h"
#include "engine/state/Indexed.h"
#include "engine/state/JoinText.h"

namespace Parlino {

// Pictures of the image list ImgPics. Picture n is the face of card n for n = 1..52.
inline constexpr Integer PictureBackUpright = 53;
inline constexpr Integer PicturePointerPlay = 54;
inline constexpr Integer PicturePointerWait = 56;
inline constexpr Integer PictureBackSideways = 57;
inline constexpr Integer PictureHearts = 60;
inline constexpr Integer PictureClubs = 61;
inline constexpr Integer PictureDiamonds = 62;
inline constexpr Integer PictureSpades = 63;

// A point of the table in twips from the top left of the client area; 15 twips are a pixel.
struct TablePoint {
  double Left = 0;
  double Top = 0;
  bool operator==(const TablePoint&) const = default;
};

// `Changed` is the number of the last change to the control, counted over the whole table; the
// window compares it with the last change it has shown. `Layer` grows with every control brought to
// the front.
struct Control {
  bool Visible = false;
  TablePoint Place;
  std::uint32_t Layer = 0;
  std::uint64_t Changed = 0;
};

struct Label : Control {
  std::string Caption;
};

struct BidButton : Label {
  std::string ToolTipText;
};

struct PictureBox : Control {
  Integer Picture = 0;       // 0 is no picture; a card's box is there once it has one
  Integer MousePointer = 0;  // 0 is the ordinary pointer
  std::string ToolTipText;
};

// Lines of text. They are kept end to end in one string, because a hand adds 65 lines and the next
// one empties the list again.
class ListBox : public Control {
 public:
  void Clear();
  void Append(std::string_view piece) { text_.append(piece); }
  void EndLine() { ends_.push_back(text_.size()); }
  [[nodiscard]] int Count() const { return static_cast<int>(ends_.size()); }
  // The line at `place` 0..Count() - 1; raises outside them.
  [[nodiscard]] std::string_view Line(int place) const;

 private:
  std::string text_;
  std::vector<std::size_t> ends_;
};

using TrickPile = Indexed<Control, 1, TricksInHand>;

struct TableView {
  Control FrmMain;  // the table window itself
  Indexed<PictureBox, 1, CardsInPack> Cds;
  TrickPile ImgBackP, ImgBackWest, ImgBackNorth, ImgBackEast;
  Indexed<Label, Player, East> LblName;
  Label LblInfo, LblTrumps;
  PictureBox imgtrumps;
  Control Shape1;
  Control FramBids, FramScores;
  Indexed<BidButton, 1, TricksInHand> LblBids;
  Label LblPBid, LblWBid, LblNBid, LblEBid, LblPNBid, LblWEBid;
  Label LblPTricks, LblWTricks, LblNTricks, LblETricks, LblPNMade, LblWEMade;
  ListBox LstCardsPlayed;
  Indexed<Label, 1, 3> StatusBar1;  // its three panels
  Label lblTitle, LblIntro, CmdDontShow;

  std::uint64_t Changes = 0;  // counts every operation that changed a control
  std::uint32_t FrontLayer = 0;
};

inline TableView Table;

// Puts the table into the state in which its window opens. Captions that the engine never sets stay
// as given here.
void OpenTable();

// Operations. Each changes the properties of one control and returns at once. Setting a picture or
// a place to the value it has counts as a change too: comparing would cost more than it saves.

inline void NoteChange(Control& control) {
  control.Changed = ++Table.Changes;
}

void SetCaption(Label& label, Pieces pieces);

inline void SetVisible(Control& control, bool visible) {
  if (control.Visible == visible) return;
  control.Visible = visible;
  NoteChange(control);
}
inline void Show(Control& control) {
  SetVisible(control, true);
}
inline void Hide(Control& control) {
  SetVisible(control, false);
}

// Puts the control in front of every control that it overlaps.
inline void BringToFront(Control& control) {
  control.Layer = ++Table.FrontLayer;
  NoteChange(control);
}

// Gives the box picture `picture` of ImgPics; its size becomes that of the picture, its place
// stays.
inline void SetPicture(PictureBox& box, Integer picture) {
  box.Picture = picture;
  NoteChange(box);
}

void SetMousePointer(PictureBox& box, Integer picture);
void SetToolTip(PictureBox& box, Pieces pieces);

// Moves the control's top left corner; units are twips.
inline void MoveTo(Control& control, TablePoint place) {
  control.Place = place;
  NoteChange(control);
}

// Both in one change, because the hands are laid out again after every card.
inline void SetPictureAt(PictureBox& box, Integer picture, TablePoint place) {
  box.Picture = picture;
  box.Place = place;
  NoteChange(box);
}

// Creates Cds[2]..Cds[52] as hidden copies of Cds[1].
void CreateCardPictures();

void AddLine(ListBox& list, Pieces pieces);
void ClearLines(ListBox& list);

// Closes the about window, the message dialog, the table and the help window, in that order and
// without asking, and ends the program: throws ProgramEnded, so that nothing that waits goes on.
[[noreturn]] void UnloadAllForms();

}  // namespace Parlino
