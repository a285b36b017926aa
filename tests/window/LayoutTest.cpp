// Where everything is, what it says and how large its letters are.
#include <gtest/gtest.h>

#include <QLabel>

#include "WindowGame.h"
#include "table/TableView.h"
#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

struct Place {
  const char* name;
  QRect box;  // in twips, inside the table or the frame
};

const Place Places[] = {
    {"Shape1", {2880, 2640, 5535, 3855}},
    {"Cds(1)", {3960, 6840, 1065, 1440}},
    {"ImgBackP(1)", {3720, 8520, 540, 540}},
    {"ImgBackP(4)", {4680, 8520, 540, 540}},
    {"ImgBackP(13)", {7800, 8520, 540, 540}},
    {"ImgBackWest(1)", {0, 2640, 540, 540}},
    {"ImgBackWest(13)", {0, 6960, 540, 540}},
    {"ImgBackNorth(1)", {2640, 0, 540, 540}},
    {"ImgBackNorth(13)", {6960, 0, 540, 540}},
    {"ImgBackEast(1)", {11160, 2640, 540, 540}},
    {"ImgBackEast(13)", {11160, 6960, 540, 540}},
    {"LblInfo", {2760, 8400, 6855, 495}},
    {"imgtrumps", {480, 600, 615, 495}},
    {"FramBids", {3960, 3600, 2985, 1785}},
    {"LblBids(1)", {180, 360, 375, 375}},
    {"LblBids(6)", {2430, 360, 375, 375}},
    {"LblBids(7)", {180, 810, 375, 375}},
    {"LblBids(12)", {2430, 810, 375, 375}},
    {"LblBids(13)", {1260, 1260, 375, 375}},
    {"FramScores", {8880, 6240, 2895, 2895}},
    {"LblBid", {1200, 240, 495, 255}},
    {"LblMade", {1920, 240, 735, 255}},
    {"LblNameScoreN", {120, 600, 975, 255}},
    {"LblNameScoreP", {120, 960, 975, 255}},
    {"LblPartnersP", {120, 1320, 975, 255}},
    {"LblNameScoreW", {120, 1680, 975, 255}},
    {"LblNameScoreE", {120, 2040, 975, 255}},
    {"LblPartnersW", {120, 2520, 975, 255}},
    {"LblNBid", {1200, 600, 495, 255}},
    {"LblPBid", {1200, 960, 495, 255}},
    {"LblPNBid", {1200, 1320, 495, 255}},
    {"LblWBid", {1200, 1680, 495, 255}},
    {"LblEBid", {1200, 2040, 495, 255}},
    {"LblWEBid", {1200, 2520, 495, 255}},
    {"LblNTricks", {2040, 600, 495, 255}},
    {"LblPTricks", {2040, 960, 495, 255}},
    {"LblPNMade", {2040, 1320, 495, 255}},
    {"LblWTricks", {2040, 1680, 495, 255}},
    {"LblETricks", {2040, 2040, 495, 255}},
    {"LblWEMade", {2040, 2520, 495, 255}},
    {"Line1", {0, 1200, 2880, 15}},
    {"Line2", {0, 1560, 2880, 15}},
    {"Line3", {0, 2400, 2880, 15}},
    {"Line4", {0, 2880, 2880, 15}},
    {"LstCardsPlayed", {7680, 120, 3972, 1305}},
    {"StatusBar1", {0, 9150, 11760, 375}},
    {"lblTitle", {240, 2400, 11295, 3315}},
    {"LblIntro", {360, 5880, 11295, 2355}},
    {"CmdDontShow", {2880, 8520, 5775, 375}},
};

TEST(Layout, EveryControlStandsInItsPlace) {
  WindowGame game;
  game.Load();
  for (const Place& place : Places) {
    const QRect& box = place.box;
    const QWidget& widget = game.Find(place.name);
    const QWidget* holder = widget.parentWidget();
    const QPoint corner = holder->objectName() == "InfoVoice" ? holder->pos() : QPoint();
    EXPECT_EQ(widget.geometry().translated(corner),
              ToPixels(box.left(), box.top(), box.width(), box.height()))
        << place.name;
  }
}

TEST(Layout, TheTableKeepsItsSizeAndPlaceWhenTheWindowGrows) {
  WindowGame game;
  game.Load();
  QWidget& window = game.Find("FrmMain");
  const QWidget& table = game.Find("Table");
  const QPoint place = table.mapTo(&window, QPoint());
  EXPECT_EQ(table.size(), QSize(784, 635));
  EXPECT_EQ(window.size(), table.size() + QSize(0, place.y()));
  window.resize(1000, 900);
  game.Turn();
  EXPECT_EQ(table.mapTo(&window, QPoint()), place);
  EXPECT_EQ(table.size(), QSize(784, 635));
}

TEST(Layout, NamesSizeThemselvesAtTheirPlaces) {
  constexpr QPoint places[] = {{64, 560}, {121, 160}, {152, 48}, {567, 160}};
  constexpr const char* captions[] = {"Player", "West- Welcome Player",
                                      "North - Hello and Welcome Player", "East - Hi "};
  WindowGame game;
  game.Load();
  for (int seat = 0; seat < 4; ++seat) {
    auto& label = dynamic_cast<QLabel&>(game.FindMember("LblName", seat));
    EXPECT_EQ(label.pos(), places[seat]) << seat;
    EXPECT_EQ(label.text(), captions[seat]);
    EXPECT_NEAR(label.width(), label.fontMetrics().horizontalAdvance(captions[seat]), 3) << seat;
    EXPECT_GT(label.height(), label.fontMetrics().height()) << "tails are cut off";
  }
}

TEST(Layout, LettersHaveTheSizeOfTheirPointsAt96DotsPerInch) {
  constexpr std::pair<const char*, int> sizes[] = {
      {"LblInfo", 15},    {"LblName(0)", 16},     {"LblName(1)", 15}, {"LblTrumps", 16},
      {"LblBids(1)", 13}, {"StatusBar1(1)", 12},  {"LblNBid", 12},    {"lblTitle", 96},
      {"LblIntro", 24},   {"LstCardsPlayed", 15}, {"CmdDontShow", 15}};
  WindowGame game;
  for (const auto& [name, size] : sizes)
    EXPECT_EQ(game.Find(name).font().pixelSize(), size) << name;
}

TEST(Layout, OpensWithTheWelcomePanelAlone) {
  constexpr std::pair<const char*, bool> visible[] = {
      {"lblTitle", true},  {"LblIntro", true},    {"CmdDontShow", true}, {"StatusBar1", true},
      {"LblInfo", true},   {"Cds(1)", true},      {"Cds(2)", false},     {"Shape1", false},
      {"FramBids", false}, {"FramScores", false}, {"LblTrumps", false},  {"ImgBackP(1)", false}};
  WindowGame game;
  game.Load();
  for (const auto& [name, isVisible] : visible)
    EXPECT_EQ(game.Find(name).isVisible(), isVisible) << name;
}

// The card is there, as the model says, but no part of it shows around the panel.
TEST(Layout, TheWelcomePanelHidesTheCardUnderIt) {
  WindowGame game;
  game.Load();
  const QWidget& card = game.Find("Cds(1)");
  const QImage seen = game.Find("Table").grab(card.geometry()).toImage();
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 0; x < seen.width(); ++x) {
      // No colour but navy, light yellow and the shades between them.
      const QColor colour = seen.pixelColor(x, y);
      ASSERT_NEAR(colour.blue(), 64 + 0.5 * colour.red(), 4) << x << "," << y;
    }
  }
}

TEST(Layout, TipsSayWhatTheyShould) {
  constexpr std::pair<const char*, const char*> tips[] = {
      {"LblBids(1)", "Click to make 1 trick"},
      {"LblBids(2)", "Click to make 2 tricks"},
      {"LblBids(13)", "Click to make 13 tricks"},
      {"LstCardsPlayed", "Cards  as played this round"},
      {"StatusBar1(1)", "The target points to win the game"},
      {"StatusBar1(2)", "The points obtained by your team"},
      {"StatusBar1(3)", "Number of points obtained by other team"}};
  WindowGame game;
  game.Load();
  for (const auto& [name, tip] : tips) EXPECT_EQ(game.Find(name).toolTip(), tip) << name;
}

}  // namespace
}  // namespace Parlino
