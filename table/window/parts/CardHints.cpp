#include "table/window/parts/CardHints.h"

#include "engine/TrickPlay.h"
#include "table/CardDisplay.h"
#include "table/window/parts/PictureView.h"
#include "table/window/parts/TableWidgets.h"

namespace Parlino {

// A card changes hands without a change of its picture box, and the turn is no part of the table:
// so every card is looked at.
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
