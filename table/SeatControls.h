// What each seat has on the table: its counts in the score frame and its trick pile.
#pragma once

#include "table/TableView.h"

namespace Parlino {

struct Counts {
  Label& bid;
  Label& tricks;
};

// A row of the score frame for each seat, then one for each team.
inline constexpr Counts CountsInFrame[] = {
    {Table.LblPBid, Table.LblPTricks}, {Table.LblWBid, Table.LblWTricks},
    {Table.LblNBid, Table.LblNTricks}, {Table.LblEBid, Table.LblETricks},
    {Table.LblPNBid, Table.LblPNMade}, {Table.LblWEBid, Table.LblWEMade}};
inline constexpr const Counts& OurCounts = CountsInFrame[SeatsAtTable];
inline constexpr const Counts& TheirCounts = CountsInFrame[SeatsAtTable + 1];

inline constexpr TrickPile* PileOf[] = {&Table.ImgBackP, &Table.ImgBackWest, &Table.ImgBackNorth,
                                        &Table.ImgBackEast};

}  // namespace Parlino
