// What a person can do to the program, one movement of a hand at a time.
#pragma once

#include <string>

namespace Parlino {

enum class DeedKind {
  ClickCard,    // number is the card
  HoverCard,    // likewise
  ClickBid,     // number is the bid
  PressAnswer,  // number is the button of the message dialog
  ClickAnswer,  // likewise
  ChooseMenu,   // number is the MenuItem
  ClickDontShow,
  CloseTable,
  CloseHelp,
  CloseAbout,
  ClickSysInfo,
};

struct Deed {
  DeedKind kind = DeedKind::ClickCard;
  int number = 1;
};

// "click card 17" and the like, for the log.
std::string TextOf(const Deed& deed);

// Does it through the doors of the table; whether a door was open.
bool DoAtTable(const Deed& deed);

}  // namespace Parlino
