#include "tests/chaos/Deed.h"

#include "table/TableEvents.h"

namespace Parlino {
namespace {

struct Door {
  const char* name;
  bool (*open)(int number);
};

// By DeedKind.
constexpr Door Doors[] = {
    {"click card", ClickCard},
    {"hover card", HoverCard},
    {"click bid", ClickBid},
    {"press answer", PressAnswer},
    {"click answer", ClickAnswer},
    {"choose menu", [](int item) { return ChooseMenu(static_cast<MenuItem>(item)); }},
    {"don't show", [](int) { return ClickDontShow(); }},
    {"close table", [](int) { return CloseTableWindow(); }},
    {"close help", [](int) { return CloseHelp(); }},
    {"close about", [](int) { return CloseAbout(); }},
    {"system info", [](int) { return ClickSysInfo(); }},
};

}  // namespace

std::string TextOf(const Deed& deed) {
  return std::string(Doors[static_cast<int>(deed.kind)].name) + " " + std::to_string(deed.number);
}

bool DoAtTable(const Deed& deed) {
  return Doors[static_cast<int>(deed.kind)].open(deed.number);
}

}  // namespace Parlino
