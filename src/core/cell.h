// Small operations on cells that several rules share.
#pragma once

#include <span>

#include "core/buildings.h"

namespace core {

/// The address of a cell.
struct Cell {
  int x;
  int y;
};

/// Whether the cell has a picture of its own: 0 .. 35 both ways.
constexpr bool hasImage(int x, int y) {
  return x >= 0 && x <= 35 && y >= 0 && y <= 35;
}

/// Makes a cell bare land: code, picture and tall flag. Its building id stays until something else
/// is built on it.
void clearCell(City& city, Cell cell);
/// Clears every cell of the building at `cell` that is within `reach` cells of it each way, and marks
/// it dirty. `reach` 1 finds all of a block from its anchor, 3 all of any building from any cell.
void clearBuilding(City& city, Cell cell, int reach);
/// Marks all cells within `reach` cells each way dirty.
void markAround(City& city, Cell cell, int reach);
/// Whether there is road on any of the cells at these offsets.
bool touchesRoad(const City& city, Cell cell, std::span<const CellOffset> offsets);

}  // namespace core
