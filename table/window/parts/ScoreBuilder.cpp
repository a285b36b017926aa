// The score frame with its headings, names and counts.
#include "table/SeatControls.h"
#include "table/window/mirror/TableMirror.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Named.h"
#include "table/window/parts/Builders.h"
#include "table/window/speaking/ScoreFrame.h"

namespace Parlino {
namespace {

constexpr double Points = 9;
constexpr int RowNameLeft = 120;
constexpr int BidLeft = 1200;
constexpr int TricksLeft = 2040;

struct ScoreRow {
  int top;
  const char* nameOfName;
  const char* caption;
  const char* nameOfBid;
  const char* nameOfTricks;
  const Counts& counts;
};

const ScoreRow ScoreRows[ScoreFrame::Rows] = {
    {600, "LblNameScoreN", "North", "LblNBid", "LblNTricks", CountsInFrame[North]},
    {960, "LblNameScoreP", "Player", "LblPBid", "LblPTricks", CountsInFrame[Player]},
    {1320, "LblPartnersP", "NSPartners", "LblPNBid", "LblPNMade", OurCounts},
    {1680, "LblNameScoreW", "West", "LblWBid", "LblWTricks", CountsInFrame[West]},
    {2040, "LblNameScoreE", "East", "LblEBid", "LblETricks", CountsInFrame[East]},
    {2520, "LblPartnersW", "WEPartners", "LblWEBid", "LblWEMade", TheirCounts},
};

void AddHeadings(ScoreFrame& frame) {
  LabelLook look{Colours::LightGrey, TimesBold(Points, Slope::Upright, Rule::Underline)};
  auto* bid = Named(frame.AddCell(0, 1, look), "LblBid");
  bid->setGeometry(ToPixels(BidLeft, 240, 495, 255));
  bid->ShowCaption("Bid");
  look.ground = Ground::Box;
  look.groundColour = Colours::Teal;
  auto* made = Named(frame.AddCell(0, 2, look), "LblMade");
  made->setGeometry(ToPixels(1920, 240, 735, 255));
  made->ShowCaption("Made");
}

void AddRow(ScoreFrame& frame, TableMirror& mirror, int number) {
  const ScoreRow& row = ScoreRows[number - 1];
  auto* name =
      Named(frame.AddCell(number, 0, {Colours::LightGrey, TimesBold(Points)}), row.nameOfName);
  name->setGeometry(ToPixels(RowNameLeft, row.top, 975, 255));
  name->ShowCaption(row.caption);
  const auto addCount = [&](int column, const char* nameOfCount, const Label& model, int left) {
    auto* count =
        Named(frame.AddCell(number, column, {Colours::Yellow, TimesBold(Points)}), nameOfCount);
    count->setGeometry(ToPixels(left, row.top, 495, 255));
    mirror.Link(model, count, [count, &model] { count->ShowModel(model); });
  };
  addCount(1, row.nameOfBid, row.counts.bid, BidLeft);
  addCount(2, row.nameOfTricks, row.counts.tricks, TricksLeft);
}

void AddLines(QWidget* frame) {
  constexpr int tops[] = {1200, 1560, 2400, 2880};
  constexpr int frameWidth = 2;  // the lines do not cross it
  int number = 1;
  for (const int top : tops) {
    auto* line = Named(new FilledBox(Colours::Peach, frame), QString("Line%1").arg(number++));
    line->setGeometry(0, ToPixels(top), ToPixels(2880), 1);
    line->setMask(line->rect().adjusted(frameWidth, 0, -frameWidth, 0));
  }
}

}  // namespace

void BuildScoreFrame(const BuildSite& site) {
  const FrameLook look{Colours::Pink, Colours::DarkGreen, WindowFont()};
  auto* frame = Named(new ScoreFrame(look, &site.parent), "FramScores");
  frame->setTitle("Bidding Situation");
  frame->setGeometry(ToPixels(8880, 6240, 2895, 2895));
  site.mirror.Link(Table.FramScores, frame);
  AddHeadings(*frame);
  for (int row = 1; row <= ScoreFrame::Rows; ++row) AddRow(*frame, site.mirror, row);
  AddLines(frame);
}

}  // namespace Parlino
