// The widgets of the table that others than their builder work with.
#pragma once

#include "engine/state/GameState.h"

class QPushButton;

namespace Parlino {

class BidFace;
class PictureView;

// All of them are there once the table is built, and live as long as it.
struct TableWidgets {
  Indexed<PictureView*, 1, CardsInPack> cards;
  Indexed<BidFace*, 1, TricksInHand> bids;
  QPushButton* dontShow = nullptr;
};

}  // namespace Parlino
