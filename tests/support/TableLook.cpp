#include "tests/support/TableLook.h"

#include <algorithm>
#include <cmath>

#include "engine/state/GameState.h"
#include "headless/CardText.h"

namespace Parlino {
namespace {

constexpr std::string_view SeatWords[] = {"Player: ", "West: ", "North: ", "East: "};

std::string Indexed(std::string_view name, int index) {
  return JoinText({name, "(", index, ")"});
}

class Looker {
 public:
  TableLook look;

  void Add(std::string name, const Control& control) {
    look.controls.push_back({.name = std::move(name),
                             .visible = control.Visible,
                             .place = control.Place,
                             .layer = control.Layer,
                             .caption = {},
                             .toolTip = {}});
  }
  void Add(std::string name, const Label& label) {
    Add(std::move(name), static_cast<const Control&>(label));
    look.controls.back().caption = label.Caption;
  }
  void Add(std::string name, const PictureBox& box) {
    Add(std::move(name), static_cast<const Control&>(box));
    ControlLook& last = look.controls.back();
    last.picture = box.Picture;
    last.pointer = box.MousePointer;
    last.toolTip = box.ToolTipText;
  }
  template <class Array>
  void AddArray(std::string_view name, const Array& array, int first) {
    for (const auto& element : array) Add(Indexed(name, first++), element);
  }
};

void LookAtLabels(Looker& looker) {
  const std::pair<const char*, const Label*> labels[] = {
      {"lblTitle", &Table.lblTitle},       {"LblIntro", &Table.LblIntro},
      {"CmdDontShow", &Table.CmdDontShow}, {"LblInfo", &Table.LblInfo},
      {"LblTrumps", &Table.LblTrumps},     {"LblPBid", &Table.LblPBid},
      {"LblWBid", &Table.LblWBid},         {"LblNBid", &Table.LblNBid},
      {"LblEBid", &Table.LblEBid},         {"LblPNBid", &Table.LblPNBid},
      {"LblWEBid", &Table.LblWEBid},       {"LblPTricks", &Table.LblPTricks},
      {"LblWTricks", &Table.LblWTricks},   {"LblNTricks", &Table.LblNTricks},
      {"LblETricks", &Table.LblETricks},   {"LblPNMade", &Table.LblPNMade},
      {"LblWEMade", &Table.LblWEMade}};
  for (const auto& [name, label] : labels) looker.Add(name, *label);
  looker.AddArray("LblName", Table.LblName, 0);
  looker.AddArray("StatusBar1", Table.StatusBar1, 1);
  for (int number = 1; number <= TricksInHand; ++number) {
    looker.Add(Indexed("LblBids", number), Table.LblBids[number]);
    looker.look.controls.back().toolTip = Table.LblBids[number].ToolTipText;
  }
}

void LookAtCards(Looker& looker) {
  for (int card = 1; card <= CardsInPack; ++card) {
    looker.Add(CardText(card), Table.Cds[card]);
    looker.look.controls.back().card = card;
  }
}

std::string Number(double number) {
  std::string digits = std::to_string(number);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.ends_with('.')) digits.pop_back();
  return digits;
}

std::string Point(TablePoint point) {
  return "(" + Number(point.Left) + "," + Number(point.Top) + ")";
}

std::string PictureWord(const ControlLook& look) {
  if (look.picture == 0) return "no picture";
  if (look.card != 0 && look.picture == look.card) return "face up";
  if (look.picture == PictureBackUpright) return "back";
  if (look.picture == PictureBackSideways) return "back sideways";
  return JoinText({"picture ", look.picture});
}

// What has changed but for the place; empty when nothing has.
std::string DescribeLook(const ControlLook& before, const ControlLook& after) {
  std::string text;
  if (before.visible != after.visible) text += after.visible ? " shown" : " hidden";
  if (before.layer != after.layer) text += " in front";
  if (before.picture != after.picture) text += " " + PictureWord(after);
  if (before.caption != after.caption) text += " " + Quote(after.caption);
  if (before.pointer != after.pointer) text += JoinText({" pointer ", after.pointer});
  if (before.toolTip != after.toolTip) text += " tip " + Quote(after.toolTip);
  return text;
}

// Cards that have changed alike, in the order in which they lie.
struct Row {
  std::string look;
  bool isMoved = false;
  TablePoint step;
  std::vector<const ControlLook*> cards;

  // Takes the card if it goes on where the row ends.
  bool Take(const ControlLook& card, const std::string& itsLook, bool isItMoved) {
    constexpr double widestStep = 400;
    if (cards.empty() || look != itsLook || isMoved != isItMoved) return false;
    const ControlLook& last = *cards.back();
    TablePoint way{card.place.Left - last.place.Left, card.place.Top - last.place.Top};
    if (!isMoved) way = {};
    if (card.layer < last.layer || std::max(std::abs(way.Left), std::abs(way.Top)) > widestStep ||
        (cards.size() > 1 && way != step))
      return false;
    step = way;
    cards.push_back(&card);
    return true;
  }

  [[nodiscard]] std::string Text() const {
    const auto count = static_cast<int>(cards.size());
    std::string text = cards.front()->name;
    if (count > 4 && cards.back()->card - cards.front()->card == count - 1)
      text += " to " + cards.back()->name;
    else
      for (int place = 1; place < count; ++place)
        text += " " + cards[static_cast<std::size_t>(place)]->name;
    text += look;
    if (isMoved) text += " at " + Point(cards.front()->place);
    if (isMoved && count > 1) text += " by " + Point(step);
    return text;
  }
};

void DescribeCards(const TableLook& before, const TableLook& after, Integer owner,
                   std::string_view whose, std::vector<std::string>& text) {
  std::vector<Row> rows;
  for (std::size_t place = 0; place < after.controls.size(); ++place) {
    const ControlLook& was = before.controls[place];
    const ControlLook& is = after.controls[place];
    if (is.card == 0 || Pack[is.card].Owner != owner) continue;
    const std::string look = DescribeLook(was, is);
    const bool isMoved = was.place != is.place;
    if (look.empty() && !isMoved) continue;
    if (rows.empty() || !rows.back().Take(is, look, isMoved))
      rows.push_back({look, isMoved, {}, {&is}});
  }
  for (const Row& row : rows) text.push_back(std::string(whose) + row.Text());
}

void DescribeList(const TableLook& before, const TableLook& after, std::vector<std::string>& text) {
  std::size_t known = before.lines.size();
  if (after.lines.size() < known) {
    text.emplace_back("list cleared");
    known = 0;
  }
  for (; known < after.lines.size(); ++known) text.push_back("list " + Quote(after.lines[known]));
}

// A card that nobody sees is taken for one that was there all the time and has only gone.
void ForgetHiddenCards(TableLook& before, const TableLook& after) {
  for (std::size_t place = 0; place < after.controls.size(); ++place) {
    const ControlLook& is = after.controls[place];
    if (is.card == 0 || is.visible) continue;
    const bool wasVisible = before.controls[place].visible;
    before.controls[place] = is;
    before.controls[place].visible = wasVisible;
  }
}

}  // namespace

TableLook LookAtTable() {
  Looker looker;
  looker.Add("FrmMain", Table.FrmMain);
  looker.Add("Shape1", Table.Shape1);
  looker.Add("FramBids", Table.FramBids);
  looker.Add("FramScores", Table.FramScores);
  looker.Add("LstCardsPlayed", static_cast<const Control&>(Table.LstCardsPlayed));
  looker.Add("imgtrumps", Table.imgtrumps);
  LookAtLabels(looker);
  looker.AddArray("ImgBackP", Table.ImgBackP, 1);
  looker.AddArray("ImgBackWest", Table.ImgBackWest, 1);
  looker.AddArray("ImgBackNorth", Table.ImgBackNorth, 1);
  looker.AddArray("ImgBackEast", Table.ImgBackEast, 1);
  LookAtCards(looker);
  for (int line = 0; line < Table.LstCardsPlayed.Count(); ++line)
    looker.look.lines.emplace_back(Table.LstCardsPlayed.Line(line));
  return looker.look;
}

TableLook LookAtNothing() {
  TableLook nothing = LookAtTable();
  nothing.lines.clear();
  for (ControlLook& control : nothing.controls)
    control = {control.name, control.card, {}, {}, {}, {}, {}, {}, {}};
  return nothing;
}

std::vector<std::string> DescribeChanges(TableLook before, const TableLook& after,
                                         bool isHiddenTold) {
  std::vector<std::string> text;
  if (!isHiddenTold) ForgetHiddenCards(before, after);
  for (std::size_t place = 0; place < after.controls.size(); ++place) {
    const ControlLook& was = before.controls[place];
    const ControlLook& is = after.controls[place];
    if (is.card != 0) continue;
    std::string look = DescribeLook(was, is);
    if (was.place != is.place) look += " at " + Point(is.place);
    if (!look.empty()) text.push_back(is.name + look);
  }
  DescribeList(before, after, text);
  for (Integer seat = Player; seat <= East; ++seat)
    DescribeCards(before, after, seat, SeatWords[seat], text);
  DescribeCards(before, after, NoSeat, "", text);
  return text;
}

std::string ShowLineEnds(std::string_view text) {
  std::string shown;
  for (const char character : text) {
    if (character == '\r')
      shown += "\\r";
    else if (character == '\n')
      shown += "\\n";
    else if (character == '\0')
      shown += "\\0";
    else
      shown += character;
  }
  return shown;
}

std::string Quote(std::string_view text) {
  return "\"" + ShowLineEnds(text) + "\"";
}

}  // namespace Parlino
