// An array whose indices begin where those of its subject do: the pack at 1, the seats at 0.
#pragma once

#include <array>
#include <cstddef>

#include "engine/state/Errors.h"

namespace Parlino {

// Holds the elements First..Last. A subscript outside them raises a GameError, so that a bug is
// reported to the player instead of silently damaging other data.
template <class T, int First, int Last>
class Indexed {
 public:
  constexpr T& operator[](int index) { return values_[Place(index)]; }
  constexpr const T& operator[](int index) const { return values_[Place(index)]; }

  constexpr auto begin() { return values_.begin(); }
  constexpr auto end() { return values_.end(); }
  constexpr auto begin() const { return values_.begin(); }
  constexpr auto end() const { return values_.end(); }

 private:
  static constexpr std::size_t Place(int index) {
    if (index < First || index > Last) RaiseIndexError(index, First, Last);
    return static_cast<std::size_t>(index - First);
  }

  std::array<T, Last - First + 1> values_{};
};

}  // namespace Parlino
