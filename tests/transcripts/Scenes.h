// Small games that are written down.
#pragma once

#include <string_view>

#include "tests/support/TranscribedPlatform.h"

namespace Parlino {

struct Scene {
  std::string_view name;
  void (*play)(TranscribedPlatform& platform);
};

extern const Scene Scenes[9];

}  // namespace Parlino
