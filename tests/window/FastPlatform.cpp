#include "tests/window/FastPlatform.h"

namespace Parlino {

std::uint32_t FastPlatform::Ticks() {
  return QtPlatform::Ticks() * TimesAsFast;
}

void FastPlatform::WaitForQt(std::uint32_t atMostMs) {
  QtPlatform::WaitForQt(atMostMs == Forever ? Forever : (atMostMs + TimesAsFast - 1) / TimesAsFast);
}

}  // namespace Parlino
