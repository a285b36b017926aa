// The two frames of the table: the bidding panel and the score frame.
#include "engine/GameState.h"
#include "table/TableEvents.h"
#include "table/window/BidFace.h"
#include "table/window/CaptionLabel.h"
#include "table/window/Design.h"
#include "table/window/FrameBox.h"
#include "table/window/PendingEvents.h"
#include "table/window/TableMirror.h"
#include "table/window/TableParts.h"

namespace Parlino {
namespace {

constexpr double ScorePoints = 9;
constexpr int RowNameLeft = 120;
constexpr int BidLeft = 1200;
constexpr int TricksLeft = 2040;

struct ScoreRow {
  int top;
  const char* nameOfName;
  const char* caption;
  const char* nameOfBid;
  const Label& bid;
  const char* nameOfTricks;
  const Label& tricks;
};

const ScoreRow ScoreRows[] = {
    {600, "LblNameScoreN", "North", "LblNBid", Table.LblNBid, "LblNTricks", Table.LblNTricks},
    {960, "LblNameScoreP", "Player", "LblPBid", Table.LblPBid, "LblPTricks", Table.LblPTricks},
    {1320, "LblPartnersP", "NSPartners", "LblPNBid", Table.LblPNBid, "LblPNMade", Table.LblPNMade},
    {1680, "LblNameScoreW", "West", "LblWBid", Table.LblWBid, "LblWTricks", Table.LblWTricks},
    {2040, "LblNameScoreE", "East", "LblEBid", Table.LblEBid, "LblETricks", Table.LblETricks},
    {2520, "LblPartnersW", "WEPartners", "LblWEBid", Table.LblWEBid, "LblWEMade", Table.LblWEMade},
};

CaptionLabel* AddScoreLabel(QWidget* frame, const char* name, const LabelLook& look, QRect box) {
  auto* label = Named(new CaptionLabel(look, frame), name);
  label->setGeometry(box);
  return label;
}

void AddHeadings(QWidget* frame) {
  LabelLook look{Colours::LightGrey, TimesBold(ScorePoints, Slope::Upright, Rule::Underline)};
  AddScoreLabel(frame, "LblBid", look, ToPixels(BidLeft, 240, 495, 255))->ShowCaption("Bid");
  look.ground = Ground::Box;
  look.groundColour = Colours::Teal;
  AddScoreLabel(frame, "LblMade", look, ToPixels(1920, 240, 735, 255))->ShowCaption("Made");
}

void AddRow(QWidget* frame, TableMirror& mirror, const ScoreRow& row) {
  const LabelLook nameLook{Colours::LightGrey, TimesBold(ScorePoints)};
  const LabelLook countLook{Colours::Yellow, TimesBold(ScorePoints)};
  AddScoreLabel(frame, row.nameOfName, nameLook, ToPixels(RowNameLeft, row.top, 975, 255))
      ->ShowCaption(row.caption);
  const auto addCount = [&](const char* name, const Label& model, int left, const char* what) {
    auto* label = AddScoreLabel(frame, name, countLook, ToPixels(left, row.top, 495, 255));
    mirror.Link(model, label, [label, &model, spoken = QString(row.caption) + what] {
      label->ShowModel(model);
      label->setAccessibleName(spoken + label->text());
    });
  };
  addCount(row.nameOfBid, row.bid, BidLeft, " bid ");
  addCount(row.nameOfTricks, row.tricks, TricksLeft, " made ");
}

void AddLines(QWidget* frame) {
  constexpr int tops[] = {1200, 1560, 2400, 2880};
  int number = 1;
  for (const int top : tops) {
    auto* line = Named(new FilledBox(Colours::Peach, frame), QString("Line%1").arg(number++));
    line->setGeometry(0, ToPixels(top), ToPixels(2880), 1);
  }
}

// Six to a row; the thirteenth alone below them.
QPoint BidFacePlace(int number) {
  constexpr int perRow = 6;
  constexpr int firstLeft = 180;
  constexpr int firstTop = 360;
  constexpr int step = 450;
  if (number == TricksInHand) return ToPixels(TablePoint{1260, 1260});
  const int column = (number - 1) % perRow;
  const int row = (number - 1) / perRow;
  return {ToPixels(firstLeft + step * column), ToPixels(firstTop + step * row)};
}

}  // namespace

void BuildBiddingPanel(const PartsBin& bin) {
  constexpr double points = 9.75;
  constexpr int faceSize = 375;
  const FrameLook look{Colours::Yellow, Colours::Teal,
                       TimesBold(points, Slope::Upright, Rule::Underline)};
  auto* frame = Named(new FrameBox(look, "How many tricks can you make?", &bin.parent), "FramBids");
  frame->setGeometry(ToPixels(3960, 3600, 2985, 1785));
  bin.mirror.Link(Table.FramBids, frame);
  for (int number = 1; number <= TricksInHand; ++number) {
    auto* face = Named(new BidFace(frame), MemberName("LblBids", number));
    face->resize(ToPixels(faceSize), ToPixels(faceSize));
    face->move(BidFacePlace(number));
    QObject::connect(face, &QAbstractButton::clicked, [&pending = bin.pending, number] {
      pending.Append({ClickBid, number});
    });
    const BidButton& model = Table.LblBids[number];
    bin.mirror.Link(model, face, [face, &model] { face->ShowModel(model); });
  }
}

void BuildScoreFrame(const PartsBin& bin) {
  const FrameLook look{Colours::Pink, Colours::DarkGreen, WindowFont()};
  auto* frame = Named(new FrameBox(look, "Bidding Situation", &bin.parent), "FramScores");
  frame->setGeometry(ToPixels(8880, 6240, 2895, 2895));
  bin.mirror.Link(Table.FramScores, frame);
  AddHeadings(frame);
  for (const ScoreRow& row : ScoreRows) AddRow(frame, bin.mirror, row);
  AddLines(frame);
}

}  // namespace Parlino
