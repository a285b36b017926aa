// The controls that each seat has, and the counters of the score frame.
#pragma once

#include "table/TableView.h"

namespace Parlino {

struct SeatControls {
  Label* bid;
  Label* tricks;
  TrickPile* pile;
};

inline const SeatControls& ControlsOf(int seat) {
  static constexpr SeatControls controls[] = {
      {&Table.LblPBid, &Table.LblPTricks, &Table.ImgBackP},
      {&Table.LblWBid, &Table.LblWTricks, &Table.ImgBackWest},
      {&Table.LblNBid, &Table.LblNTricks, &Table.ImgBackNorth},
      {&Table.LblEBid, &Table.LblETricks, &Table.ImgBackEast}};
  return controls[seat];
}

// Bids and tricks of the seats and of the teams.
inline constexpr Label* Counters[] = {&Table.LblPBid,    &Table.LblWBid,    &Table.LblNBid,
                                      &Table.LblEBid,    &Table.LblPTricks, &Table.LblWTricks,
                                      &Table.LblNTricks, &Table.LblETricks, &Table.LblPNBid,
                                      &Table.LblWEBid,   &Table.LblPNMade,  &Table.LblWEMade};

}  // namespace Parlino
