// The table top and the pictures on it.
#include "engine/state/GameState.h"
#include "table/TableEvents.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/mirror/TableMirror.h"
#include "table/window/painting/CaptionLabel.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Named.h"
#include "table/window/parts/Builders.h"
#include "table/window/parts/PictureView.h"
#include "table/window/parts/TableTop.h"
#include "table/window/parts/TableWidgets.h"
#include "table/window/speaking/Speaker.h"
#include "table/window/speaking/SpokenNames.h"

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

void BuildPile(const BuildSite& site, Integer seat, const char* name, const TrickPile& pile,
               TablePoint (*placeOf)(int trick)) {
  for (int trick = 1; trick <= TricksInHand; ++trick) {
    auto* back = Named(new Speaking<TrickBack>(&site.parent), MemberName(name, trick));
    back->resize(ToPixels(PileCardSize), ToPixels(PileCardSize));
    back->move(ToPixels(placeOf(trick)));
    back->speak = [seat, trick] { return SpokenTrick(seat, trick); };
    site.mirror.Link(pile[trick], back);
  }
}

void ReportCardEvents(Speaking<PictureView>& view, int card, PendingEvents& pending) {
  view.onClick = [&pending, card] { pending.Append({ClickCard, card}); };
  view.press = view.onClick;
  view.onHover = [&pending, card] { pending.AppendOnce({HoverCard, card}); };
}

}  // namespace

void BuildTableTop(const BuildSite& site) {
  auto* top = Named(new Speaking<TableTop>(&site.parent), "Shape1");
  site.widgets.tableTop = top;
  top->setGeometry(ToPixels(2880, 2640, 5535, 3855));
  site.mirror.Link(Table.Shape1, top);
}

void BuildTrickPiles(const BuildSite& site) {
  BuildPile(site, Player, "ImgBackP", Table.ImgBackP, PlayersPilePlace);
  BuildPile(site, West, "ImgBackWest", Table.ImgBackWest, WestPilePlace);
  BuildPile(site, North, "ImgBackNorth", Table.ImgBackNorth, NorthPilePlace);
  BuildPile(site, East, "ImgBackEast", Table.ImgBackEast, EastPilePlace);
}

void BuildTrumps(const BuildSite& site) {
  constexpr int mostWidth = 120;
  constexpr double points = 12;
  auto* heading = Named(
      new CaptionLabel({Colours::LightYellow, TimesBold(points, Slope::Upright, Rule::Underline)},
                       &site.parent),
      "LblTrumps");
  heading->setGeometry(ToPixels(480, 240, 795, 285));
  heading->SizeToCaption(mostWidth);
  site.mirror.Link(Table.LblTrumps, heading, [heading] { heading->ShowModel(Table.LblTrumps); });

  auto* picture = Named(new Speaking<PictureView>(&site.parent), "imgtrumps");
  picture->speak = SpokenTrumps;
  picture->setGeometry(ToPixels(480, 600, 615, 495));
  site.mirror.Link(Table.imgtrumps, picture, [picture] { picture->ShowModel(Table.imgtrumps); });
}

void BuildCards(const BuildSite& site) {
  for (Integer card = 1; card <= CardsInPack; ++card) {
    auto* view = Named(new Speaking<PictureView>(&site.parent), MemberName("Cds", card));
    view->speak = [card] { return SpokenCard(card); };
    ReportCardEvents(*view, card, site.pending);
    site.widgets.cards[card] = view;
    const PictureBox& box = Table.Cds[card];
    site.mirror.Link(
        box, view, [view, &box] { view->ShowModel(box); }, Placing::Glides);
  }
}

}  // namespace Parlino
