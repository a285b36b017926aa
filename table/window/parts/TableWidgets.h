// The widgets of the table that are needed again after they have been built.
#pragma once

#include "engine/state/GameState.h"

class QPushButton;
class QWidget;

namespace Parlino {

class BidFace;
class PictureView;

// All are set once the table is built, and live as long as the table.
struct TableWidgets {
  Indexed<PictureView*, 1, CardsInPack> cards;
  Indexed<BidFace*, 1, TricksInHand> bids;
  QPushButton* dontShow = nullptr;
  QWidget* tableTop = nullptr;
  QWidget* biddingPanel = nullptr;
};

}  // namespace Parlino
