#include "sim/coverage.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "core/buildings.h"

namespace sim {

namespace {

using core::CellGrid;
using core::City;
using core::Flag;
using core::kServices;

// Effect areas are worked out for these cells both ways, capacity for the cells 0 .. 31.
constexpr int kFirstCoveredCell = -5;
constexpr int kLastCoveredCell = 35;
constexpr int kLastHousingCell = 31;

// The cells of one grid, a bit for each: bit x - kLowX of entry y - kLowY.
constexpr int kLow = CellGrid<Flag>::kLowX;
constexpr int kHigh = CellGrid<Flag>::kHighX;
using Cells = std::array<std::uint64_t, kHigh - kLow + 1>;
static_assert(kHigh - kLow < 64);

// Widens every cell to a square of `reach` cells each way; what leaves the grid is cut off.
Cells squaresAround(const Cells& cells, int reach) {
  Cells wide{};
  const int rows = static_cast<int>(cells.size());
  for (int row = 0; row < rows; ++row) {
    const std::uint64_t line = cells[row];
    if (line == 0) continue;
    std::uint64_t widened = line;
    for (int step = 1; step <= reach; ++step) widened |= line << step | line >> step;
    for (int to = row - reach; to <= row + reach; ++to) {
      if (to >= 0 && to < rows) wide[to] |= widened;
    }
  }
  for (std::uint64_t& line : wide) line &= (std::uint64_t{1} << rows) - 1;
  return wide;
}

}  // namespace

void rebuildCoverage(City& city) {
  for (int k = 1; k <= kServices; ++k) {
    core::coverGrid(city, k).fillSquare(kFirstCoveredCell, kLastCoveredCell, 0);
  }
  city.cellCapacity.fillSquare(kFirstCoveredCell, kLastCoveredCell, 0);
  city.cellServices.fillSquare(kFirstCoveredCell, kLastCoveredCell, 0);
  city.housingCapacity = 0;

  // Each cell of a building casts a square of its own. Rows of bits make that cheap enough to be
  // done in every press.
  std::array<Cells, kServices> sources{};
  for (int y = kFirstCoveredCell; y <= kLastCoveredCell; ++y) {
    for (int x = kFirstCoveredCell; x <= kLastCoveredCell; ++x) {
      const int k = core::serviceOfCode(city.tileCode(x, y));
      if (k == 0) continue;
      sources[k - 1][y - kLow] |= std::uint64_t{1} << (x - kLow);
    }
  }
  for (int k = 1; k <= kServices; ++k) {
    const Cells covered = squaresAround(sources[k - 1], core::buildingOfService(k).reach);
    CellGrid<Flag>& cover = core::coverGrid(city, k);
    for (int y = kLow; y <= kHigh; ++y) {
      std::uint64_t line = covered[y - kLow];
      for (; line != 0; line &= line - 1) cover(kLow + std::countr_zero(line), y) = 1;
    }
  }
}

void rebuildCapacity(City& city) {
  double housing = city.housingCapacity;
  for (int y = 0; y <= kLastHousingCell; ++y) {
    for (int x = 0; x <= kLastHousingCell; ++x) {
      int services = 0;
      for (int k = 1; k <= kServices; ++k) services += city.cellService[k](x, y);
      city.cellServices(x, y) = services;

      double capacity = 0;
      if (core::isResidenceCode(city.tileCode(x, y))) {
        capacity = (2 * services + 2) * (1 + (15 - city.taxRate) / 50);
        if (city.food <= 0 && capacity >= 4) capacity = 4;
        housing += capacity;
      }
      city.cellCapacity(x, y) = capacity;
    }
  }
  city.housingCapacity = std::floor(housing);
}

void markObjectCells(City& city) {
  for (int y = 0; y <= kLastHousingCell; ++y) {
    for (int x = 0; x <= kLastHousingCell; ++x) {
      const int code = city.tileCode(x, y);
      // The nearest cell of a block is flat ground in its picture.
      if (core::serviceOfCode(code) != 0 && code % 10 != 4) city.cellTall(x, y) = 1;
    }
  }
}

}  // namespace sim
