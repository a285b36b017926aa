// The table top and the pictures on it.
#include "engine/GameState.h"
#include "table/TableEvents.h"
#include "table/window/CaptionLabel.h"
#include "table/window/Design.h"
#include "table/window/FrameBox.h"
#include "table/window/PendingEvents.h"
#include "table/window/PictureView.h"
#include "table/window/SpokenNames.h"
#include "table/window/TableMirror.h"
#include "table/window/TableParts.h"

namespace Parlino {
namespace {

constexpr int PileCardSize = 540;
constexpr int PileStep = 360;
constexpr int PlayersPileLefts[TricksInHand] = {3720, 4080, 4440, 4680, 5040, 5400, 5760,
                                                6120, 6480, 6840, 7200, 7560, 7800};

TablePoint PlayersPilePlace(int trick) {
  return {static_cast<double>(PlayersPileLefts[trick - 1]), 8520};
}
TablePoint WestPilePlace(int trick) {
  return {0, 2640.0 + PileStep * (trick - 1)};
}
TablePoint NorthPilePlace(int trick) {
  return {2640.0 + PileStep * (trick - 1), 0};
}
TablePoint EastPilePlace(int trick) {
  return {11160, 2640.0 + PileStep * (trick - 1)};
}

void BuildPile(const PartsBin& bin, const char* name, const TrickPile& pile,
               TablePoint (*placeOf)(int trick)) {
  for (int trick = 1; trick <= TricksInHand; ++trick) {
    auto* back = Named(new TrickBack(&bin.parent), MemberName(name, trick));
    back->resize(ToPixels(PileCardSize), ToPixels(PileCardSize));
    back->move(ToPixels(placeOf(trick)));
    back->setAccessibleName("Trick taken");
    bin.mirror.Link(pile[trick], back);
  }
}

void ReportCardEvents(PictureView& view, int card, PendingEvents& pending) {
  view.onClick = [&pending, card] { pending.Append({ClickCard, card}); };
  view.onHover = [&pending, card] { pending.AppendOnce({HoverCard, card}); };
}

}  // namespace

void BuildTableTop(const PartsBin& bin) {
  constexpr int borderWidth = 5;
  auto* top = Named(new FilledBox(Colours::Green, &bin.parent), "Shape1");
  top->SetBorder(Colours::Brown, borderWidth);
  top->setGeometry(ToPixels(2880, 2640, 5535, 3855));
  bin.mirror.Link(Table.Shape1, top);
}

void BuildTrickPiles(const PartsBin& bin) {
  BuildPile(bin, "ImgBackP", Table.ImgBackP, PlayersPilePlace);
  BuildPile(bin, "ImgBackWest", Table.ImgBackWest, WestPilePlace);
  BuildPile(bin, "ImgBackNorth", Table.ImgBackNorth, NorthPilePlace);
  BuildPile(bin, "ImgBackEast", Table.ImgBackEast, EastPilePlace);
}

void BuildTrumps(const PartsBin& bin) {
  constexpr int mostWidth = 120;
  constexpr double points = 12;
  auto* heading = Named(
      new CaptionLabel({Colours::LightYellow, TimesBold(points, Slope::Upright, Rule::Underline)},
                       &bin.parent),
      "LblTrumps");
  heading->setGeometry(ToPixels(480, 240, 795, 285));
  heading->SizeToCaption(mostWidth);
  bin.mirror.Link(Table.LblTrumps, heading, [heading] { heading->ShowModel(Table.LblTrumps); });

  auto* picture = Named(new PictureView(&bin.parent), "imgtrumps");
  picture->setGeometry(ToPixels(480, 600, 615, 495));
  bin.mirror.Link(Table.imgtrumps, picture, [picture] {
    picture->ShowModel(Table.imgtrumps);
    picture->setAccessibleName(SpokenTrumps(Table.imgtrumps.Picture));
  });
}

void BuildCards(const PartsBin& bin) {
  for (int card = 1; card <= CardsInPack; ++card) {
    auto* view = Named(new PictureView(&bin.parent), MemberName("Cds", card));
    const PictureBox& box = Table.Cds[card];
    ReportCardEvents(*view, card, bin.pending);
    const auto show = [view, &box] {
      view->ShowModel(box);
      view->setAccessibleName(SpokenCard(box.Picture));
    };
    bin.mirror.Link(box, view, show, Placing::Glides);
  }
}

}  // namespace Parlino
