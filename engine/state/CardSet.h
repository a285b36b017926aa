// A set of card numbers. It is walked from the lowest to the highest, the order in which hands are
// sorted on the table and the robots look through them.
#pragma once

#include <bit>
#include <cstdint>

#include "engine/state/Errors.h"

namespace Parlino {

class CardSet {
 public:
  class Walk {
   public:
    explicit Walk(std::uint64_t left) : left_(left) {}
    Integer operator*() const { return static_cast<Integer>(std::countr_zero(left_)); }
    Walk& operator++() {
      left_ &= left_ - 1;
      return *this;
    }
    bool operator==(const Walk&) const = default;

   private:
    std::uint64_t left_;
  };

  CardSet() = default;

  // The cards of the suit beginning with card `first` for which the condition holds. Built without
  // branches, because the processor cannot predict who holds a card.
  template <class Condition>
  static CardSet OfSuit(int first, Condition holds) {
    CardSet set;
    for (int place = 12; place >= 0; --place)
      set.bits_ = 2 * set.bits_ + std::uint64_t{holds(first + place)};
    set.bits_ <<= first;
    return set;
  }

  // The cards of the whole pack for which the condition holds.
  template <class Condition>
  static CardSet OfPack(Condition holds) {
    return OfSuit(1, holds) | OfSuit(14, holds) | OfSuit(27, holds) | OfSuit(40, holds);
  }

  CardSet operator|(CardSet other) const {
    other.bits_ |= bits_;
    return other;
  }

  [[nodiscard]] Walk begin() const { return Walk(bits_); }
  [[nodiscard]] Walk end() const { return Walk(0); }
  [[nodiscard]] bool IsEmpty() const { return bits_ == 0; }
  [[nodiscard]] bool Has(int card) const { return (bits_ >> card & 1) != 0; }
  [[nodiscard]] Integer Count() const { return static_cast<Integer>(std::popcount(bits_)); }
  // Both are 0 for an empty set.
  [[nodiscard]] Integer Lowest() const { return IsEmpty() ? Integer{0} : *begin(); }
  [[nodiscard]] Integer Highest() const {
    return static_cast<Integer>(IsEmpty() ? 0 : 63 - std::countl_zero(bits_));
  }

  // The cards of the set from `first` to `last`, both included. For an empty set the two may be any
  // numbers, as they are when a suit is not one of the four.
  [[nodiscard]] CardSet Between(int first, int last) const {
    CardSet part;
    if (!IsEmpty() && first <= last)
      part.bits_ = bits_ & (~std::uint64_t{0} << first) & (~std::uint64_t{0} >> (63 - last));
    return part;
  }

 private:
  std::uint64_t bits_ = 0;  // bit n for card n
};

}  // namespace Parlino
