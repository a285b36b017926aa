// A person who does anything at any time. Now and then it is what the game waits for, so that hands
// and games come to their ends as well.
#pragma once

#include <cstdint>
#include <string>

#include "engine/Generator.h"
#include "tests/chaos/Deed.h"

namespace Parlino {

class ChaosPerson {
 public:
  explicit ChaosPerson(std::uint64_t seed);

  // How many deeds are done at this chance, one after the other.
  int ChooseCount();
  // What is done next: something new, or the same once more.
  Deed ChooseDeed();
  // An answer to a box that asks for a name, empty for Cancel.
  std::string ChooseName();
  // How much of a wait goes by until the next chance: mostly a part of it, and once in a while an
  // hour more, for the machine sleeps.
  std::uint32_t ChooseWait(std::uint32_t atMostMs);
  // Whether something happens that does so once in `odds` times.
  bool Once(int odds) { return generator_.NextBelow(odds) == 0; }
  int NextBelow(int count) { return generator_.NextBelow(count); }

 private:
  Deed ChooseAnything();
  Deed ChooseWanted();

  Generator generator_;
  Deed last_;
};

}  // namespace Parlino
