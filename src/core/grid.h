// Tables of a fixed size with their index ranges as template arguments. A debug build checks every index.
#pragma once

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace core {

#ifdef VELLMORAN_CHECK_INDICES
inline void checkIndex(int index, int low, int high, const char* what) {
  if (index < low || index > high) {
    std::fprintf(stderr, "%s %d outside %d .. %d\n", what, index, low, high);
    std::abort();
  }
}
#else
inline void checkIndex(int, int, int, const char*) {}
#endif

/// A row of values with the indices Low .. High.
template <class T, int Low, int High>
class Row {
 public:
  static constexpr int kLow = Low;
  static constexpr int kHigh = High;

  T& operator[](int i) {
    checkIndex(i, Low, High, "index");
    return cells_[i - Low];
  }
  const T& operator[](int i) const {
    checkIndex(i, Low, High, "index");
    return cells_[i - Low];
  }
  void fill(const T& value) { cells_.fill(value); }

 private:
  std::array<T, static_cast<std::size_t>(High - Low + 1)> cells_{};
};

/// A table addressed (x, y) with x in LowX .. HighX and y in LowY .. HighY; the cells of one y
/// are contiguous, as most scans run over y outside and x inside.
template <class T, int LowX, int HighX, int LowY, int HighY>
class Table {
 public:
  static constexpr int kLowX = LowX;
  static constexpr int kHighX = HighX;
  static constexpr int kLowY = LowY;
  static constexpr int kHighY = HighY;

  T& operator()(int x, int y) { return cells_[at(x, y)]; }
  const T& operator()(int x, int y) const { return cells_[at(x, y)]; }
  void fill(const T& value) { cells_.fill(value); }
  /// Gives the cells low .. high in both directions a value.
  void fillSquare(int low, int high, const T& value) {
    for (int y = low; y <= high; ++y) {
      for (int x = low; x <= high; ++x) (*this)(x, y) = value;
    }
  }

 private:
  static std::size_t at(int x, int y) {
    checkIndex(x, LowX, HighX, "x");
    checkIndex(y, LowY, HighY, "y");
    return static_cast<std::size_t>(y - LowY) * static_cast<std::size_t>(HighX - LowX + 1) +
           static_cast<std::size_t>(x - LowX);
  }
  std::array<T, static_cast<std::size_t>((HighX - LowX + 1) * (HighY - LowY + 1))> cells_{};
};

/// A grid over the map: cells -10 .. 39 both ways. The map proper is 0 .. 30; the margin lets rules
/// look a few cells beside a building without checking for the edge of the map.
template <class T>
using CellGrid = Table<T, -10, 39, -10, 39>;

}  // namespace core
