// Where cells are on the surface of the map, and where the surface is on the screen.
#pragma once

#include "platform/geometry.h"

namespace map {

/// The surface, at its resting place: centred on the screen.
inline constexpr platform::Rect kRestingPlace{-592, -228, 1984, 1056};
/// The boxes of cells: a tall cell's and, the lower half of it, a flat cell's.
inline constexpr int kCellWidth = 64;
inline constexpr int kTallHeight = 64;
inline constexpr int kFlatHeight = 32;
/// Half of a cell's diamond across and down: one step along x is (32, 16), one along y (-32, 16).
inline constexpr int kHalfCellWidth = 32;
inline constexpr int kHalfCellHeight = 16;

/// The upper left corner of a tall cell's box.
constexpr platform::Point tallOrigin(int x, int y) {
  return {kHalfCellWidth * (x - y) + 960, kHalfCellHeight * (x + y)};
}
/// The upper left corner of a flat cell's box.
constexpr platform::Point flatOrigin(int x, int y) {
  return {tallOrigin(x, y).x, tallOrigin(x, y).y + kFlatHeight};
}
/// The middle of a cell's diamond.
constexpr platform::Point cellCentre(int x, int y) {
  return {flatOrigin(x, y).x + kHalfCellWidth, flatOrigin(x, y).y + kHalfCellHeight};
}

/// The cell whose diamond holds a pixel of the surface, by the exact lattice.
constexpr platform::Point cellAt(int px, int py) {
  const int across = px - (tallOrigin(0, 0).x + kHalfCellWidth);
  const int down = 2 * (py - 2 * kHalfCellHeight);
  return {(down + across) >> 6, (down - across) >> 6};
}

}  // namespace map
