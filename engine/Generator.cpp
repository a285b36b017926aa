#include "engine/Generator.h"

namespace Parlino {
namespace {

constexpr std::uint64_t Step = 0x9E3779B97F4A7C15;  // 2^64 divided by the golden ratio
constexpr int Bits = 24;                            // as many as single precision holds

// The finishing rounds of the splitmix generator: every bit of the result depends on every bit.
std::uint64_t Scramble(std::uint64_t value) {
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
  return value ^ (value >> 31);
}

}  // namespace

void Generator::Seed(std::uint64_t seed) {
  state_ = Scramble(seed + Step);
}

void Generator::Mix(std::uint64_t value) {
  state_ = Scramble(state_ ^ value) + Step;
}

std::uint32_t Generator::NextBits() {
  state_ += Step;
  return static_cast<std::uint32_t>(Scramble(state_) >> (64 - Bits));
}

int Generator::NextBelow(int count) {
  return static_cast<int>(std::uint64_t{NextBits()} * static_cast<std::uint64_t>(count) >> Bits);
}

}  // namespace Parlino
