#include "table/window/speaking/SpokenNames.h"

#include "engine/state/GameState.h"
#include "engine/state/Questions.h"
#include "table/CardDisplay.h"
#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

QString SeatWord(Integer seat) {
  static constexpr const char* words[SeatsAtTable] = {"Player", "West", "North", "East"};
  return words[seat];
}

// Includes the name that the seat has been given, if it differs.
QString SeatTitle(Integer seat) {
  const QString name = ToText(NameOf(seat)).simplified();
  const QString word = SeatWord(seat);
  return name.isEmpty() || name == word ? word : word + ", " + name;
}

}  // namespace

Spoken SpokenCard(Integer card) {
  if (Table.Cds[card].Picture != card) return {QAccessible::Graphic, "Card face down", true};
  const QString name = ToText(Pack[card].FullName).simplified();
  const CardSet row = PlayersRow();
  if (row.Has(card)) {
    const QString state = CardsHumanMayPlay().Has(card) ? "playable, " : "";
    const int place = row.Between(1, card).Count();
    const QString where = QString("%1 of %2").arg(place).arg(row.Count());
    return {.role = QAccessible::Button, .name = name + ", " + state + where, .canBePressed = true};
  }
  const Integer seat = SeatBehindCard(card);
  return {QAccessible::Graphic, seat == NoSeat ? name : name + ", played by " + SeatWord(seat)};
}

Spoken SpokenTrumps() {
  static constexpr struct {
    Integer picture;
    const char* name;
  } suits[] = {{PictureHearts, "Trumps Hearts"},
               {PictureClubs, "Trumps Clubs"},
               {PictureDiamonds, "Trumps Diamonds"},
               {PictureSpades, "Trumps Spades"}};
  for (const auto& suit : suits)
    if (suit.picture == Table.imgtrumps.Picture) return {QAccessible::Graphic, suit.name};
  return {QAccessible::Graphic, "Trumps not known", true};
}

Spoken SpokenTrick(Integer seat, int trick) {
  return {QAccessible::Graphic, QString("Trick %1 of %2").arg(trick).arg(SeatWord(seat))};
}

Spoken SpokenSeat(Integer seat) {
  if (!HandInProgress) return {.name = ToText(Table.LblName[seat].Caption).simplified()};
  const QString bid = Bids[seat] < 1 ? "no bid yet" : QString("bid %1").arg(Bids[seat]);
  return {.name = QString("%1: %2, took %3").arg(SeatTitle(seat), bid).arg(TricksWon[seat])};
}

Spoken SpokenInfo() {
  const QString text = ToText(Table.LblInfo.Caption).simplified();
  return {QAccessible::Notification, text, text.isEmpty()};
}

QString SpokenLine(int place, const QString& line) {
  constexpr int linesOfTrick = SeatsAtTable + 1;
  if (!line.startsWith('=')) return line.simplified();
  return QString("End of trick %1").arg((place + 1) / linesOfTrick);
}

}  // namespace Parlino
