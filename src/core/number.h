// Numbers that may be unset.
//
// A saved game keeps the difference: an unset value is an empty field in the file, is read
// back as unset, and is written as empty again. Wherever it is used it counts as 0.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

namespace core {

/// A general number: floating-point, as money and food need it; whole numbers are exact in it.
class Number {
 public:
  constexpr Number() = default;
  constexpr Number(double value) : value_(value) {}  // NOLINT: used as a plain number

  constexpr operator double() const { return isSet() ? value_ : 0.0; }  // NOLINT
  constexpr bool isSet() const { return std::bit_cast<std::uint64_t>(value_) != kUnset; }
  constexpr void unset() { value_ = std::bit_cast<double>(kUnset); }
  /// The value as a whole number, its fraction dropped; a value from a file that is beyond the range
  /// gives the end of the range.
  constexpr int whole() const {
    constexpr double kEnd = std::numeric_limits<int>::max();
    const double value = *this;
    return value > kEnd     ? static_cast<int>(kEnd)
           : value >= -kEnd ? static_cast<int>(value)
                            : -static_cast<int>(kEnd);
  }

  constexpr Number& operator+=(double d) { return *this = *this + d; }
  constexpr Number& operator-=(double d) { return *this = *this - d; }

 private:
  // A NaN that no arithmetic yields.
  static constexpr std::uint64_t kUnset = 0x7FF8'0000'5645'4C4Du;
  double value_ = std::bit_cast<double>(kUnset);
};

/// A small whole number of a grid: a code, a flag, a count. Its lowest value means unset.
template <class T>
class Whole {
 public:
  constexpr Whole() = default;
  constexpr Whole(int value) : value_(static_cast<T>(value)) {}  // NOLINT: used as a plain number

  constexpr operator int() const { return value_ == kUnset ? 0 : value_; }  // NOLINT
  constexpr bool isSet() const { return value_ != kUnset; }
  constexpr void unset() { value_ = kUnset; }

 private:
  static constexpr T kUnset = std::numeric_limits<T>::min();
  T value_ = kUnset;
};

using Code = Whole<std::int16_t>;  // tile codes
using Flag = Whole<std::int8_t>;   // flags and small counts

}  // namespace core
