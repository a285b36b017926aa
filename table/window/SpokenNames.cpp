#include "table/window/SpokenNames.h"

#include "engine/GameState.h"
#include "table/TableView.h"
#include "table/window/Design.h"

namespace Parlino {

QString SpokenCard(Integer picture) {
  if (picture < 1 || picture > CardsInPack) return "Card face down";
  return ToText(Pack[picture].FullName).simplified();
}

QString SpokenTrumps(Integer picture) {
  switch (picture) {
    case PictureHearts:
      return "Trumps Hearts";
    case PictureClubs:
      return "Trumps Clubs";
    case PictureDiamonds:
      return "Trumps Diamonds";
    case PictureSpades:
      return "Trumps Spades";
    default:
      return {};
  }
}

QString SpokenSeat(int seat) {
  static constexpr const char* names[SeatsAtTable] = {"Player", "West", "North", "East"};
  return names[seat];
}

}  // namespace Parlino
