// The bidding panel.
#include "engine/state/GameState.h"
#include "table/BidWalk.h"
#include "table/TableEvents.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/mirror/TableMirror.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/FrameBox.h"
#include "table/window/painting/Named.h"
#include "table/window/parts/BidFace.h"
#include "table/window/parts/Builders.h"
#include "table/window/parts/TableWidgets.h"

namespace Parlino {
namespace {

QPoint BidFacePlace(int number) {
  constexpr int firstLeft = 180;
  constexpr int firstTop = 360;
  constexpr int step = 450;
  if (number == TricksInHand) return ToPixels(TablePoint{1260, 1260});
  const int column = (number - 1) % BidsInRow;
  const int row = (number - 1) / BidsInRow;
  return {ToPixels(firstLeft + step * column), ToPixels(firstTop + step * row)};
}

}  // namespace

void BuildBiddingPanel(const BuildSite& site) {
  constexpr double points = 9.75;
  constexpr int faceSize = 375;
  const FrameLook look{Colours::Yellow, Colours::Teal,
                       TimesBold(points, Slope::Upright, Rule::Underline)};
  auto* frame = Named(new FrameBox(look, &site.parent), "FramBids");
  site.widgets.biddingPanel = frame;
  frame->setTitle("How many tricks can you make?");
  frame->setGeometry(ToPixels(3960, 3600, 2985, 1785));
  site.mirror.Link(Table.FramBids, frame);
  for (int number = 1; number <= TricksInHand; ++number) {
    auto* face = Named(new BidFace(frame), MemberName("LblBids", number));
    site.widgets.bids[number] = face;
    face->resize(ToPixels(faceSize), ToPixels(faceSize));
    face->move(BidFacePlace(number));
    face->setAccessibleName(QString("Bid %1").arg(number));
    QObject::connect(face, &QAbstractButton::clicked, [&pending = site.pending, number] {
      pending.Append({ClickBid, number});
    });
    const BidButton& model = Table.LblBids[number];
    site.mirror.Link(model, face, [face, &model] { face->ShowModel(model); });
  }
}

}  // namespace Parlino
