// The whims of a person who does anything at any time.
#pragma once

#include <cstdint>
#include <iterator>
#include <string>

#include "engine/Generator.h"
#include "platform/Platform.h"

namespace Parlino {

class ChaosPerson {
 public:
  explicit ChaosPerson(std::uint64_t seed) { generator_.Seed(~seed); }

  int Below(int count) { return generator_.NextBelow(count); }
  // Whether something happens that does so once in `odds` times.
  bool Once(int odds) { return Below(odds) == 0; }
  template <class Items>
  auto OneOf(const Items& items) {
    return std::begin(items)[Below(static_cast<int>(std::size(items)))];
  }
  // One of those with a `weight`, as often as that is high.
  template <class Deeds>
  auto OneByWeight(const Deeds& deeds) {
    int total = 0;
    for (const auto& deed : deeds) total += deed.weight;
    auto chosen = std::begin(deeds);
    for (int place = Below(total); place >= chosen->weight; ++chosen) place -= chosen->weight;
    return *chosen;
  }

  // An answer to a box that asks for a name, empty for Cancel.
  std::string ChooseName() {
    static constexpr std::string_view names[] = {"",
                                                 "Wanda",
                                                 "Smith, \"John\"",
                                                 "two\r\nlines\tand a tab",
                                                 "   ",
                                                 "broken \xFF\xC3",
                                                 "J\xC3\xBCrgen \xE2\x99\xA5 \xF0\x9F\x83\x8F",
                                                 "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
                                                 "line\xE2\x80\xA8separator\x7F",
                                                 "a played the Ace of Spades",
                                                 "bid",
                                                 {"nul\0inside", 10}};
    return Once(20) ? std::string(5000, 'x') : std::string(OneOf(names));
  }

  // How much of a wait goes by until the next chance: mostly a part of it, and once in a while an
  // hour more, for the machine sleeps.
  std::uint32_t ChooseWait(std::uint32_t atMostMs) {
    constexpr std::uint32_t anHour = 3'600'000;
    if (atMostMs == Forever) return Forever;
    if (Once(5000)) return atMostMs + anHour;
    if (atMostMs <= 1 || Once(3)) return atMostMs;
    return static_cast<std::uint32_t>(Below(static_cast<int>(atMostMs)));
  }

 private:
  Generator generator_;
};

}  // namespace Parlino
