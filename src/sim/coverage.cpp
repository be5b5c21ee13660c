#include "sim/coverage.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "core/vocabulary.h"

namespace sim {

namespace {

using core::CellGrid;
using core::Flag;
using core::GameState;
using core::kLastCell;
using core::kServices;

// Effect areas are worked out for these cells both ways, capacity for the cells 0 .. 31.
constexpr int kFirstCoveredCell = -5;
constexpr int kLastCoveredCell = 35;
constexpr int kLastHousingCell = 31;

// How far a cell of a building reaches, by service 1..5.
constexpr std::array<int, kServices> kReach{5, 6, 4, 5, 4};

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
    const std::uint64_t line = cells[static_cast<std::size_t>(row)];
    if (line == 0) continue;
    std::uint64_t widened = line;
    for (int step = 1; step <= reach; ++step) widened |= line << step | line >> step;
    for (int to = row - reach; to <= row + reach; ++to) {
      if (to >= 0 && to < rows) wide[static_cast<std::size_t>(to)] |= widened;
    }
  }
  for (std::uint64_t& line : wide) line &= (std::uint64_t{1} << rows) - 1;
  return wide;
}

}  // namespace

int reachOf(int service) {
  return kReach[static_cast<std::size_t>(service - 1)];
}

void rebuildCoverage(GameState& game) {
  for (int k = 1; k <= kServices; ++k) {
    core::coverGrid(game, k).fillSquare(kFirstCoveredCell, kLastCoveredCell, 0);
  }
  game.cellCapacity.fillSquare(kFirstCoveredCell, kLastCoveredCell, 0);
  game.cellServices.fillSquare(kFirstCoveredCell, kLastCoveredCell, 0);
  game.housingCapacity = 0;

  // Each cell of a building casts a square of its own. Rows of bits make that cheap enough to be
  // done in every press.
  std::array<Cells, kServices> sources{};
  for (int y = kFirstCoveredCell; y <= kLastCoveredCell; ++y) {
    for (int x = kFirstCoveredCell; x <= kLastCoveredCell; ++x) {
      const int k = core::serviceOfCode(game.tileCode(x, y));
      if (k == 0) continue;
      sources[static_cast<std::size_t>(k - 1)][static_cast<std::size_t>(y - kLow)] |=
          std::uint64_t{1} << (x - kLow);
    }
  }
  for (int k = 1; k <= kServices; ++k) {
    const auto service = static_cast<std::size_t>(k - 1);
    const Cells covered = squaresAround(sources[service], reachOf(k));
    CellGrid<Flag>& cover = core::coverGrid(game, k);
    for (int y = kLow; y <= kHigh; ++y) {
      std::uint64_t line = covered[static_cast<std::size_t>(y - kLow)];
      for (; line != 0; line &= line - 1) cover(kLow + std::countr_zero(line), y) = 1;
    }
  }
}

void rebuildCapacity(GameState& game) {
  double housing = game.housingCapacity;
  for (int y = 0; y <= kLastHousingCell; ++y) {
    for (int x = 0; x <= kLastHousingCell; ++x) {
      int services = 0;
      for (int k = 1; k <= kServices; ++k) services += game.cellService[k](x, y);
      game.cellServices(x, y) = services;

      double capacity = 0;
      if (core::isResidenceCode(game.tileCode(x, y))) {
        capacity = (2 * services + 2) * (1 + (15 - game.taxRate) / 50);
        if (game.food <= 0 && capacity >= 4) capacity = 4;
        housing += capacity;
      }
      game.cellCapacity(x, y) = capacity;
    }
  }
  game.housingCapacity = std::floor(housing);
}

void markObjectCells(GameState& game) {
  for (int y = 0; y <= kLastHousingCell; ++y) {
    for (int x = 0; x <= kLastHousingCell; ++x) {
      const int code = game.tileCode(x, y);
      // The nearest cell of a block is flat ground in its picture.
      if (core::serviceOfCode(code) != 0 && code % 10 != 4) game.cellTall(x, y) = 1;
    }
  }
}

void clearLayer(GameState& game, int k) {
  game.roadService[k].fillSquare(0, kLastCell, 0);
  game.cellService[k].fillSquare(0, kLastCell, 0);
}

}  // namespace sim
