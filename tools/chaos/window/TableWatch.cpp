#include "tools/chaos/window/TableWatch.h"

#include <unordered_map>

#include <QAbstractItemModel>
#include <QApplication>
#include <QCursor>
#include <QListView>

#include "engine/TrickPlay.h"
#include "engine/state/GameState.h"
#include "table/TableEvents.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Named.h"
#include "table/window/painting/Pictures.h"
#include "table/window/parts/PictureView.h"
#include "tests/window/WindowGame.h"

namespace Parlino {
namespace {

bool IsInPlayersHand(int card) {
  constexpr double top = 6600;
  const PictureBox& box = Table.Cds[card];
  return Pack[card].Owner == Player && box.Picture == card && box.Place.Top == top;
}

// Only a card of the Player's hand may have a hint, and only one that is true.
bool HintIsRight(const QWidget& widget, int card) {
  const PictureBox& box = Table.Cds[card];
  const bool isDue = IsInPlayersHand(card) && HintHolds(ToInteger(card));
  return widget.testAttribute(Qt::WA_SetCursor) == isDue &&
         widget.toolTip() == (isDue ? PlainToolTip(ToText(box.ToolTipText)) : QString());
}

// What a person sees without moving the mouse.
bool PointerTellsWhoseTurnItIs() {
  const QWidget& window = WindowGame::Find("FrmMain");
  const bool isThere = window.underMouse() && TableTakesInput() &&
                       QApplication::activeModalWidget() == nullptr &&
                       QApplication::mouseButtons() == Qt::NoButton;
  const QWidget* seen = isThere ? window.childAt(window.mapFromGlobal(QCursor::pos())) : nullptr;
  if (seen == nullptr || !seen->objectName().startsWith("Cds(")) return true;
  if (!IsInPlayersHand(seen->objectName().mid(4).chopped(1).toInt())) return true;
  return seen->toolTip().contains(PlayerTurn != False ? "you wish to play." : "at the moment.");
}

}  // namespace

TableWatch::TableWatch() {
  TellCards();
  TellScores();
  TellList();
  Tell("Shape1", Table.Shape1);
  Tell("WelcomeGround", Table.LblIntro);
  for (int seat = Player; seat <= East; ++seat)
    TellCaption(MemberName("LblName", seat), Table.LblName[seat], true);
  TellCaption("LblInfo", Table.LblInfo);
  TellCaption("LblTrumps", Table.LblTrumps);
  TellCaption("lblTitle", Table.lblTitle);
  TellCaption("LblIntro", Table.LblIntro);
  TellCaption("CmdDontShow", Table.CmdDontShow);
  for (int panel = 1; panel <= 3; ++panel)
    TellCaption(MemberName("StatusBar1", panel), Table.StatusBar1[panel]);
}

void TableWatch::Tell(const QString& name, const Control& control, bool hasPlace) {
  ties_.push_back({name, &control, &WindowGame::Find(name), [] { return true; }, hasPlace});
}

void TableWatch::TellCaption(const QString& name, const Label& label, bool hasPlace) {
  Tell(name, label, hasPlace);
  ties_.back().isShown = [widget = ties_.back().widget, &label] {
    return widget->property("text").toString() == ToText(label.Caption);
  };
}

void TableWatch::TellPicture(const QString& name, const PictureBox& box, bool hasPlace) {
  Tell(name, box, hasPlace);
  ties_.back().isShown = [widget = dynamic_cast<PictureView*>(ties_.back().widget), &box] {
    return widget->Picture() == box.Picture &&
           (box.Picture == 0 || widget->size() == PictureSize(box.Picture));
  };
}

void TableWatch::TellCards() {
  for (int card = 1; card <= CardsInPack; ++card) {
    TellPicture(MemberName("Cds", card), Table.Cds[card], true);
    const QWidget* widget = ties_.back().widget;
    ties_.back().isShown = [picture = ties_.back().isShown, widget, card] {
      return picture() && HintIsRight(*widget, card);
    };
  }
  TellPicture("imgtrumps", Table.imgtrumps, false);
  for (int trick = 1; trick <= TricksInHand; ++trick) {
    Tell(MemberName("ImgBackP", trick), Table.ImgBackP[trick]);
    Tell(MemberName("ImgBackWest", trick), Table.ImgBackWest[trick]);
    Tell(MemberName("ImgBackNorth", trick), Table.ImgBackNorth[trick]);
    Tell(MemberName("ImgBackEast", trick), Table.ImgBackEast[trick]);
  }
}

void TableWatch::TellScores() {
  Tell("FramBids", Table.FramBids);
  for (int bid = 1; bid <= TricksInHand; ++bid)
    TellCaption(MemberName("LblBids", bid), Table.LblBids[bid]);
  Tell("FramScores", Table.FramScores);
  TellCaption("LblPBid", Table.LblPBid);
  TellCaption("LblWBid", Table.LblWBid);
  TellCaption("LblNBid", Table.LblNBid);
  TellCaption("LblEBid", Table.LblEBid);
  TellCaption("LblPNBid", Table.LblPNBid);
  TellCaption("LblWEBid", Table.LblWEBid);
  TellCaption("LblPTricks", Table.LblPTricks);
  TellCaption("LblWTricks", Table.LblWTricks);
  TellCaption("LblNTricks", Table.LblNTricks);
  TellCaption("LblETricks", Table.LblETricks);
  TellCaption("LblPNMade", Table.LblPNMade);
  TellCaption("LblWEMade", Table.LblWEMade);
}

void TableWatch::TellList() {
  Tell("LstCardsPlayed", Table.LstCardsPlayed);
  const auto& lines = *dynamic_cast<QListView&>(*ties_.back().widget).model();
  ties_.back().isShown = [&lines] {
    const ListBox& list = Table.LstCardsPlayed;
    if (lines.rowCount() != list.Count()) return false;
    for (int place = 0; place < list.Count(); ++place)
      if (lines.index(place, 0).data().toString() != ToText(list.Line(place))) return false;
    return true;
  };
}

// Controls brought to the front later must lie further in front; West's name and the information
// line lie in front of everything.
bool TableWatch::LayersAreInOrder() const {
  std::unordered_map<const QObject*, std::uint32_t> layers;
  for (const Tie& tie : ties_) layers.emplace(tie.widget, tie.control->Layer);
  for (const char* inFront : {"LblName(1)", "LblInfo"}) layers.erase(&WindowGame::Find(inFront));
  std::uint32_t behind = 0;
  for (const QObject* widget : WindowGame::Find("Table").children()) {
    const auto layer = layers.find(widget);
    if (layer == layers.end()) continue;
    if (layer->second < behind) return false;
    behind = layer->second;
  }
  return true;
}

std::string TableWatch::Look(bool nothingGlides) const {
  for (const Tie& tie : ties_) {
    if (tie.widget->isHidden() == tie.control->Visible || !tie.isShown() ||
        (tie.hasPlace && nothingGlides && tie.widget->pos() != ToPixels(tie.control->Place)))
      return tie.name.toStdString();
  }
  if (nothingGlides && !PointerTellsWhoseTurnItIs()) return "whose turn it is at the pointer";
  return LayersAreInOrder() ? std::string() : "the layer of a control";
}

// The corners of a picture are round and show what lies below.
std::string TableWatch::LookAtFace(int card) const {
  constexpr int corner = 8;
  const PictureBox& box = Table.Cds[card];
  if (!box.Visible || box.Picture == 0) return {};
  const Tie& tie = ties_[static_cast<std::size_t>(card - 1)];
  const auto inner = [](const QPixmap& picture) {
    const QRect all(QPoint(0, 0), picture.size());
    return picture.copy(all.adjusted(corner, corner, -corner, -corner))
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
  };
  const QPixmap expected = CardPicture(box.Picture, tie.widget->devicePixelRatioF());
  return inner(tie.widget->grab()) == inner(expected) ? std::string() : tie.name.toStdString();
}

}  // namespace Parlino
