// The texts of the table: the welcome panel, the names, the information line, the list of cards
// played and the status bar.
#include <QLabel>
#include <QPushButton>

#include "engine/state/GameState.h"
#include "table/TableEvents.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/mirror/TableMirror.h"
#include "table/window/painting/CaptionLabel.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/FlatButton.h"
#include "table/window/painting/FrameBox.h"
#include "table/window/painting/Named.h"
#include "table/window/parts/Builders.h"
#include "table/window/parts/PlayedList.h"
#include "table/window/parts/TableWidgets.h"
#include "table/window/speaking/Speaker.h"
#include "table/window/speaking/SpokenNames.h"

namespace Parlino {
namespace {

constexpr int AsManyAsFit = 0;
constexpr double NamePoints = 12;

void BuildWelcomeText(const BuildSite& site, const char* name, const Label& model, QRect box,
                      const QFont& font) {
  auto* label = Named(new CaptionLabel({.colour = Colours::LightYellow,
                                        .font = font,
                                        .ground = Ground::None,
                                        .mostLines = AsManyAsFit},
                                       &site.parent),
                      name);
  label->setGeometry(box);
  site.mirror.Link(model, label, [label, &model] { label->ShowModel(model); });
}

// How far a name may extend before it meets the next thing beside it, in pixels. The Player's name
// has less room while the welcome button is shown.
int RoomForName(int seat) {
  constexpr int rooms[SeatsAtTable] = {166, 436, 354, 175};
  constexpr int roomBesideButton = 124;
  return seat == Player && Table.CmdDontShow.Visible ? roomBesideButton : rooms[seat];
}

void ShowName(CaptionLabel* label, int seat) {
  label->SizeToCaption(RoomForName(seat));
  label->ShowModel(Table.LblName[seat]);
}

}  // namespace

void BuildWelcomePanel(const BuildSite& site) {
  constexpr double titlePoints = 72;
  constexpr double introductionPoints = 18;
  // A single card lies on the table before the first deal and must not show behind the panel, so
  // the panel has a background of its own across the middle of the table.
  auto* ground = Named(new Speaking<FilledBox>(Colours::Navy, &site.parent), "WelcomeGround");
  ground->setGeometry(0, 160, ClientSize.width(), 396);
  site.mirror.Link(Table.LblIntro, ground);
  BuildWelcomeText(site, "lblTitle", Table.lblTitle, ToPixels(240, 2400, 11295, 3315),
                   TimesBold(titlePoints, Slope::Italic, Rule::Underline));
  BuildWelcomeText(site, "LblIntro", Table.LblIntro, ToPixels(360, 5880, 11295, 2355),
                   TimesBold(introductionPoints, Slope::Italic));
}

void BuildNames(const BuildSite& site) {
  for (Integer seat = Player; seat <= East; ++seat) {
    const QFont font = seat == West ? WindowFont() : TimesBold(NamePoints, Slope::Italic);
    const Ground ground = seat == West ? Ground::Strip : Ground::None;
    const LabelLook look{Colours::LightYellow, font, Qt::AlignLeft, ground, Colours::Navy};
    auto* label =
        Named(new Speaking<CaptionLabel>(look, &site.parent), MemberName("LblName", seat));
    label->speak = [seat] { return SpokenSeat(seat); };
    site.mirror.Link(
        Table.LblName[seat], label, [label, seat] { ShowName(label, seat); }, Placing::Jumps);
    if (seat == West) site.mirror.KeepInFront(label);
  }
}

// The line overlaps the Player's trick pile and the left part of the score frame. It stays in
// front, on a background no larger than its text, and its text ends where the frame begins. Its
// accessible object never disappears; otherwise tools would read every note again whenever the line
// comes back.
void BuildInfoLine(const BuildSite& site) {
  constexpr int widthBesideScores = 355;
  auto* voice = Named(new Speaking<QWidget>(&site.parent), "InfoVoice");
  voice->speak = SpokenInfo;
  voice->setGeometry(ToPixels(2760, 8400, 6855, 495));
  site.mirror.KeepInFront(voice);
  const LabelLook look{.colour = Colours::Yellow,
                       .font = WindowFont(),
                       .ground = Ground::Strip,
                       .groundColour = Colours::Navy,
                       .mostLines = 2};
  auto* info = Named(new Speaking<CaptionLabel>(look, voice), "LblInfo");
  info->LimitTextWidth(widthBesideScores);
  info->setGeometry(voice->rect());
  site.mirror.Link(Table.LblInfo, info, [info] { info->ShowModel(Table.LblInfo); });
}

void BuildWelcomeButton(const BuildSite& site) {
  auto* button = Named(new FlatButton({}, &site.parent), "CmdDontShow");
  site.widgets.dontShow = button;
  button->setGeometry(ToPixels(2880, 8520, 5775, 375));
  button->setFont(WindowFont());
  QPalette colours = LightColours(Colours::LightGrey, Colours::Peach);
  colours.setColor(QPalette::Highlight, Colours::Gold);
  button->setPalette(colours);
  QObject::connect(button, &QPushButton::clicked, [&pending = site.pending] {
    pending.Append({[](int) { return ClickDontShow(); }});
  });
  site.mirror.Link(Table.CmdDontShow, button, [button] {
    button->setText(QString::fromStdString(Table.CmdDontShow.Caption));
  });
}

void BuildPlayedList(const BuildSite& site) {
  auto* list = Named(new PlayedList(&site.parent), "LstCardsPlayed");
  list->setGeometry(ToPixels(7680, 120, 3972, 1305));
  list->setToolTip("Cards  as played this round");
  list->setAccessibleName("Cards played");
  site.mirror.Link(Table.LstCardsPlayed, list, [list] { list->ShowModel(Table.LstCardsPlayed); });
}

void BuildStatusBar(const BuildSite& site) {
  constexpr int panelWidth = 3000;
  constexpr double points = 9;
  static constexpr const char* tips[] = {"The target points to win the game",
                                         "The points obtained by your team",
                                         "Number of points obtained by other team"};
  auto* bar = Named(new QWidget(&site.parent), "StatusBar1");
  bar->setAccessibleName("Points");
  bar->setGeometry(ToPixels(0, 9150, 11760, 375));
  bar->setAutoFillBackground(true);
  for (int number = 1; number <= 3; ++number) {
    auto* panel = Named(new QLabel(bar), MemberName("StatusBar1", number));
    panel->setGeometry(
        ToPixels(panelWidth * (number - 1), 0, panelWidth, 375).adjusted(2, 2, -2, -1));
    panel->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    panel->setTextFormat(Qt::PlainText);
    panel->setFont(TimesBold(points));
    panel->setIndent(4);
    panel->setToolTip(tips[number - 1]);
    const Label& model = Table.StatusBar1[number];
    site.mirror.Link(model, panel,
                     [panel, &model] { panel->setText(QString::fromStdString(model.Caption)); });
  }
}

}  // namespace Parlino
