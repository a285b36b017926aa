// The random generator of the deal. It is our own, so that a seed gives the same game with any
// compiler and library.
#pragma once

#include <bit>
#include <cstdint>

#include "platform/Platform.h"

namespace Parlino {

class Generator {
 public:
  // Starts the sequence that belongs to the seed.
  void Seed(std::uint64_t seed);
  // Mixes a value into the state. The state carries over, so that mixing in the same value twice
  // still gives different sequences.
  void Mix(std::uint64_t value);
  // The next 24 random bits.
  std::uint32_t NextBits();
  // A whole number 0..count - 1.
  int NextBelow(int count);

 private:
  std::uint64_t state_ = 0;
};

// The generator that deals the cards. It is seeded once, before the game begins.
inline Generator DealGenerator;

// Mixes the platform's clock into DealGenerator.
inline void MixClockIntoGenerator() {
  DealGenerator.Mix(std::bit_cast<std::uint64_t>(ThePlatform().ClockSeconds()));
}

// The next value of DealGenerator, uniform in [0, 1) and with the 24 bits of single precision.
inline double NextRandom() {
  return DealGenerator.NextBits() * 0x1p-24;
}

}  // namespace Parlino
