#include "table/window/parts/CardHints.h"

#include "engine/TrickPlay.h"
#include "table/CardDisplay.h"
#include "table/window/parts/PictureView.h"
#include "table/window/parts/TableWidgets.h"

namespace Parlino {

// A card can change hands without a change to its picture box, and the turn is not part of the
// table's model, so every card is checked.
void CardHints::Follow() {
  const CardSet row = PlayersRow();
  const CardSet toShow =
      CardSet::OfPack([row](int card) { return row.Has(card) && HintHolds(ToInteger(card)); });
  for (const Integer card : toShow | shown_) {
    if (toShow.Has(card))
      widgets_.cards[card]->ShowHint(Table.Cds[card].MousePointer, Table.Cds[card].ToolTipText);
    else
      widgets_.cards[card]->ShowHint(0, {});
  }
  shown_ = toShow;
}

}  // namespace Parlino
