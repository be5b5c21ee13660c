#include "core/cell.h"

#include <algorithm>

namespace core {

void clearCell(City& city, Cell cell) {
  city.tileCode(cell.x, cell.y) = kEmptyCode;
  city.cellTall(cell.x, cell.y) = 0;
  if (hasImage(cell.x, cell.y)) city.tileImage(cell.x, cell.y) = 0;
}

void clearBuilding(City& city, Cell cell, int reach) {
  const double id = city.buildingId(cell.x, cell.y);
  for (int y = cell.y - reach; y <= cell.y + reach; ++y) {
    for (int x = cell.x - reach; x <= cell.x + reach; ++x) {
      if (city.buildingId(x, y) != id) continue;
      clearCell(city, {x, y});
      city.cellDirty(x, y) = 1;
    }
  }
}

void markAround(City& city, Cell cell, int reach) {
  for (int y = cell.y - reach; y <= cell.y + reach; ++y) {
    for (int x = cell.x - reach; x <= cell.x + reach; ++x) city.cellDirty(x, y) = 1;
  }
}

bool touchesRoad(const City& city, Cell cell, std::span<const CellOffset> offsets) {
  return std::any_of(offsets.begin(), offsets.end(), [&](CellOffset offset) {
    return city.tileCode(cell.x + offset.x, cell.y + offset.y) == kRoadCode;
  });
}

}  // namespace core
