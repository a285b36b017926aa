#include "tools/chaos/Deed.h"

#include "table/TableEvents.h"

namespace Parlino {

std::string TextOf(const Deed& deed) {
  constexpr const char* names[] = {"click card",   "hover card",  "click bid",  "press answer",
                                   "click answer", "choose menu", "don't show", "close table",
                                   "close help",   "close about", "system info"};
  return std::string(names[static_cast<int>(deed.kind)]) + " " + std::to_string(deed.number);
}

bool DoAtTable(const Deed& deed) {
  switch (deed.kind) {
    case DeedKind::ClickCard:
      return ClickCard(deed.number);
    case DeedKind::HoverCard:
      return HoverCard(deed.number);
    case DeedKind::ClickBid:
      return ClickBid(deed.number);
    case DeedKind::PressAnswer:
      return PressAnswer(deed.number);
    case DeedKind::ClickAnswer:
      return ClickAnswer(deed.number);
    case DeedKind::ChooseMenu:
      return ChooseMenu(static_cast<MenuItem>(deed.number));
    case DeedKind::ClickDontShow:
      return ClickDontShow();
    case DeedKind::CloseTable:
      return CloseTableWindow();
    case DeedKind::CloseHelp:
      return CloseHelp();
    case DeedKind::CloseAbout:
      return CloseAbout();
    default:
      return ClickSysInfo();
  }
}

}  // namespace Parlino
