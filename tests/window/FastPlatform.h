// The window's platform with a clock that runs ahead of the machine's, so that a test at a real
// display need not wait for the pauses of the game.
#pragma once

#include "table/window/QtPlatform.h"

namespace Parlino {

class FastPlatform : public QtPlatform {
 public:
  static constexpr std::uint32_t TimesAsFast = 20;

  using QtPlatform::QtPlatform;
  std::uint32_t Ticks() override;

 protected:
  void WaitForQt(std::uint32_t atMostMs) override;
};

}  // namespace Parlino
