// What the game does in a scene.
#include "SceneSteps.h"
#include "engine/StartUp.h"
#include "table/CardDisplay.h"
#include "table/MessageDialog.h"
#include "table/SeatControls.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

// Those that scenes change.
Label& LabelCalled(const QString& name) {
  if (name.startsWith("LblName(")) return Table.LblName[name.mid(8, 1).toInt()];
  static const std::map<QString, Label*> labels = {
      {"CmdDontShow", &Table.CmdDontShow}, {"LblInfo", &Table.LblInfo},
      {"LblIntro", &Table.LblIntro},       {"LblTrumps", &Table.LblTrumps},
      {"lblTitle", &Table.lblTitle},       {"LblWBid", &Table.LblWBid},
      {"LblPNMade", &Table.LblPNMade},     {"StatusBar1(2)", &Table.StatusBar1[2]}};
  return *labels.at(name);
}

Control& NextControl(Words& words) {
  const QString name = words.Next();
  if (name.size() == 2) return Table.Cds[CardOf(name.toStdString())];
  static const std::map<QString, Control*> controls = {{"FrmMain", &Table.FrmMain},
                                                       {"FramBids", &Table.FramBids},
                                                       {"FramScores", &Table.FramScores},
                                                       {"Shape1", &Table.Shape1},
                                                       {"imgtrumps", &Table.imgtrumps}};
  const auto found = controls.find(name);
  return found == controls.end() ? LabelCalled(name) : *found->second;
}

void ShowHand(Integer seat) {
  constexpr void (*show[])() = {ShowPlayerHand, ShowWestHand, ShowNorthHand, ShowEastHand};
  show[seat]();
  for (const Integer card : HandOf(seat)) Show(Table.Cds[card]);
}

void DealHand(Words& words) {
  for (Label* label : {&Table.CmdDontShow, &Table.LblIntro, &Table.lblTitle}) Hide(*label);
  PlacePackDeal();
  for (Control& card : Table.Cds) Hide(card);
  GiveHand(Player, words.Rest());
  ShowHand(Player);
  TrumpSuit = Clubs;
  GameInProgress = True;
  PauseMs = DefaultPauseMs;
}

void GiveCards(Words& words) {
  const Integer seat = words.Seat();
  GiveHand(seat, words.Rest());
  ShowHand(seat);
}

void TakeCard(Words& words) {
  Pack[words.Card()].Owner = NoSeat;
  ShowPlayerHand();
}

void BringPack(Words&) {
  PlacePackDeal();
  TrumpSuit = -1;
}

void SetLeader(Words& words) {
  Leader = words.Seat();
  if (!words.IsEmpty()) LedSuit = SuitOf(words.Rest()[0]);
}

void StartTrick(Words& words) {
  HandInProgress = true;
  TrickNumber = ToInteger(words.Number());
}

void MakeTrumps(Words& words) {
  constexpr Integer pictures[] = {PictureDiamonds, PictureClubs, PictureHearts, PictureSpades};
  TrumpSuit = SuitOf(words.Rest()[0]);
  SetPicture(Table.imgtrumps, pictures[TrumpSuit - Diamonds]);
}

void PutInMiddle(Words& words) {
  const Integer card = words.Card();
  MoveToMiddle(card, words.Seat());
}

void TurnOver(Words& words) {
  const Integer card = words.Card();
  SetPicture(Table.Cds[card], words.IsEmpty() ? card : ToInteger(words.Number()));
}

void MovePart(Words& words) {
  Control& control = NextControl(words);
  const QPoint place = words.Point();
  MoveTo(control, {static_cast<double>(place.x()), static_cast<double>(place.y())});
}

void GoOn(Words& words) {
  const Integer seat = words.Seat();
  HandInProgress = true;
  Bids[seat] = ToInteger(words.Number());
  TricksWon[seat] = ToInteger(words.Number());
  for (int trick = 1; trick <= TricksWon[seat]; ++trick) Show((*PileOf[seat])[trick]);
}

void Caption(Words& words) {
  Label& label = LabelCalled(words.Next());
  SetCaption(label, {words.Rest()});
}

void Pause(Words& words) {
  PauseMs = ToInteger(words.Number());
  WaitMs();
}

void Ask(Words& words) {
  const Integer mark = ToInteger(words.Number());
  const QStringList texts = QString::fromStdString(words.Rest()).split(" / ");
  const auto text = [&](int place) { return texts.value(place).toStdString(); };
  const std::string prompt = text(1) == "long" ? std::string(20'000, 'x') : text(1);
  ShowMessage(prompt, text(2), text(3), "", 3, text(0), mark);
  words.Tell(QString("the answer is %1").arg(MessageChoice));
}

void AskName(Words& words) {
  const std::string name = words.player.game.platform.InputBox("prompt", "title", "default");
  words.Tell("answered \"" + QString::fromStdString(name) + '"');
}

void WriteHelp(Words& words) {
  std::string text = words.Rest();
  if (text == "long") {
    text = "Aces ";
    for (int line = 0; line < 300; ++line) text += "\\par line " + std::to_string(line);
    text += "\\par Kings \\par aces again";
  } else if (text == "wide") {
    text = "\\trowd";
    for (int cell = 1; cell <= 61; ++cell) text += "\\cellx" + std::to_string(100 * cell);
    for (int cell = 1; cell <= 61; ++cell) text += "\\intbl " + std::to_string(cell) + "\\cell";
    text += "\\row\\pard";
  }
  words.player.game.platform.ReplaceFile("ParlinoHelp.rtf", "{\\rtf1 " + text + "}");
}

}  // namespace

const Steps StepsOfGame = {
    {"hand", DealHand},
    {"give", GiveCards},
    {"take", TakeCard},
    {"pack", BringPack},
    {"turn", [](Words& words) { PlayerTurn = words.Next() == "on" ? True : False; }},
    {"lead", SetLeader},
    {"trick", StartTrick},
    {"trumps", MakeTrumps},
    {"middle", PutInMiddle},
    {"face", TurnOver},
    {"front", [](Words& words) { BringToFront(NextControl(words)); }},
    {"move", MovePart},
    {"show", [](Words& words) { Show(NextControl(words)); }},
    {"hide", [](Words& words) { Hide(NextControl(words)); }},
    {"caption", Caption},
    {"line", [](Words& words) { AddLine(Table.LstCardsPlayed, {words.Rest()}); }},
    {"clear", [](Words&) { ClearLines(Table.LstCardsPlayed); }},
    {"called", [](Words& words) { PlayerName = words.Rest(); }},
    {"greet", [](Words&) { ShowNames(); }},
    {"progress", GoOn},
    {"ask", Ask},
    {"name", AskName},
    {"box",
     [](Words& words) { words.player.game.platform.MsgBox(words.Rest(), "Parlino", false); }},
    {"trouble",
     [](Words& words) { words.player.game.platform.MsgBox(words.Rest(), "Parlino", true); }},
    {"help", WriteHelp},
    {"pause", Pause},
    {"wait", [](Words& words) { words.player.WaitFor(words.Number()); }},
    {"pace", [](Words& words) { words.player.SetPace(words.Number()); }},
    {"sleep", [](Words& words) { words.player.game.platform.ticks += words.Next().toUInt(); }},
    {"motion", [](Words& words) { words.player.game.platform.cardsGlide = words.Next() == "on"; }},
    {"deaf", [](Words& words) { words.player.isDeaf = true; }},
    {"tools", [](Words& words) { words.player.ListenToTools(words.IsEmpty()); }},
};

}  // namespace Parlino
