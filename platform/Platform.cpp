#include "platform/Platform.h"

#include <stdexcept>

namespace Parlino {
namespace {

Platform* platformInUse = nullptr;

}  // namespace

void UsePlatform(Platform& platform) {
  platformInUse = &platform;
}

Platform& ThePlatform() {
  if (platformInUse == nullptr) throw std::logic_error("no platform is in use");
  return *platformInUse;
}

}  // namespace Parlino
