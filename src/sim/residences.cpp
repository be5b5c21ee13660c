#include "sim/residences.h"

#include <array>
#include <span>

#include "core/vocabulary.h"

namespace sim {

namespace {

using core::BlockDesign;
using core::CellOffset;
using core::GameState;

constexpr int kLastHousingCell = 31;

// Pictures of buildings overlap the cells behind them, which must be repainted with the building. A
// house that becomes a tent lays bare the first five; everything else concerns all eight.
constexpr std::array<CellOffset, 8> kBehind{
    {{-1, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, -1}, {-2, -1}, {-2, -2}, {-1, -2}}};
constexpr std::span<const CellOffset> kBehindAll{kBehind};
constexpr std::span<const CellOffset> kBehindNear = kBehindAll.first(5);

void markBehind(GameState& game, int x, int y, std::span<const CellOffset> behind) {
  for (const CellOffset cell : behind) game.cellDirty(x + cell.x, y + cell.y) = 1;
}

void dress(GameState& game, int x, int y, const BlockDesign& stage) {
  for (std::size_t n = 0; n < core::kBlock.size(); ++n) {
    const int cellX = x + core::kBlock[n].x;
    const int cellY = y + core::kBlock[n].y;
    game.tileImage(cellX, cellY) = static_cast<std::int16_t>(stage.images[n]);
    game.cellTall(cellX, cellY) = stage.tall[n];
    game.cellDirty(cellX, cellY) = 1;
  }
}

void evolve(GameState& game, int x, int y) {
  // The poorest cell decides for the building. Exactly 4 is a tent, exactly 9 a house.
  double least = game.cellCapacity(x, y);
  for (const CellOffset cell : core::kBlock) {
    const double capacity = game.cellCapacity(x + cell.x, y + cell.y);
    if (capacity < least) least = capacity;
  }

  if (least <= 4) {
    const int image = game.tileImage(x, y);
    if (image == core::kTentImage) return;
    if (core::isHouseImage(image)) markBehind(game, x, y, kBehindNear);
    if (core::isApartmentImage(image)) markBehind(game, x, y, kBehindAll);
    dress(game, x, y, core::kTent);
    return;
  }
  // Wanted: houses and apartments are dressed and marked anew in every call, changed or not, so any
  // press repaints them all; only a tent that stays one is left alone.
  markBehind(game, x, y, kBehindAll);
  dress(game, x, y, least > 9 ? core::kApartment : core::kHouse);
}

}  // namespace

void evolveResidences(GameState& game) {
  for (int x = 0; x <= kLastHousingCell; ++x) {
    for (int y = 0; y <= kLastHousingCell; ++y) {
      if (game.tileCode(x, y) == core::kResidenceCode) evolve(game, x, y);
    }
  }
}

}  // namespace sim
