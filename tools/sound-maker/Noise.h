#pragma once

#include <cstdint>

namespace Parlino {

// Hiss that is the same on every machine, unlike the standard distributions.
class Noise {
 public:
  explicit Noise(std::uint32_t seed) : state_(seed) {}

  // Evenly distributed from 0 to 1.
  double NextFraction() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_ / 4294967296.0;
  }

  // Evenly distributed from -1 to 1.
  double NextSample() { return 2 * NextFraction() - 1; }

 private:
  std::uint32_t state_;
};

}  // namespace Parlino
