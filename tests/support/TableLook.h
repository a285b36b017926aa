// The table as a player sees it at one moment, and in words what has changed from one moment to the
// next.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "table/TableView.h"

namespace Parlino {

struct ControlLook {
  std::string name;
  int card = 0;  // or 0
  bool visible = false;
  TablePoint place;
  std::uint32_t layer = 0;
  std::string caption;
  int picture = 0;
  int pointer = 0;
  std::string toolTip;
};

struct TableLook {
  std::vector<ControlLook> controls;
  std::vector<std::string> lines;  // of the list of cards played
};

// How the table looks now; and how it would look with every control hidden and empty.
TableLook LookAtTable();
TableLook LookAtNothing();

// One line for each control that has changed. Cards of one seat that have changed alike and stand
// in a row share a line. Of a card that is hidden, its back and its place are told or not.
std::vector<std::string> DescribeChanges(TableLook before, const TableLook& after,
                                         bool isHiddenTold);

// The text with line ends that can be seen; and in quotes.
std::string ShowLineEnds(std::string_view text);
std::string Quote(std::string_view text);

}  // namespace Parlino
