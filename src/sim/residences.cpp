#include "sim/residences.h"

#include <array>
#include <span>

#include "core/vocabulary.h"

namespace sim {

namespace {

using core::CellOffset;
using core::City;
using core::Look;

constexpr int kLastHousingCell = 31;

// Pictures of buildings overlap the cells behind them, which must be repainted with the building. A
// house that becomes a tent lays bare the first five; everything else concerns all eight.
constexpr std::array<CellOffset, 8> kBehind{
    {{-1, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, -1}, {-2, -1}, {-2, -2}, {-1, -2}}};
constexpr std::span<const CellOffset> kBehindAll{kBehind};
constexpr std::span<const CellOffset> kBehindNear = kBehindAll.first(5);

void markBehind(City& city, int x, int y, std::span<const CellOffset> behind) {
  for (const CellOffset cell : behind) city.cellDirty(x + cell.x, y + cell.y) = 1;
}

void dress(City& city, int x, int y, const Look& stage) {
  for (std::size_t n = 0; n < core::kBlock.size(); ++n) {
    const int cellX = x + core::kBlock[n].x;
    const int cellY = y + core::kBlock[n].y;
    city.tileImage(cellX, cellY) = stage.images[n];
    city.cellTall(cellX, cellY) = stage.tall[n];
    city.cellDirty(cellX, cellY) = 1;
  }
}

void evolve(City& city, int x, int y) {
  // The poorest cell decides for the building. Exactly 4 is a tent, exactly 9 a house.
  double least = city.cellCapacity(x, y);
  for (const CellOffset cell : core::kBlock) {
    const double capacity = city.cellCapacity(x + cell.x, y + cell.y);
    if (capacity < least) least = capacity;
  }

  if (least <= 4) {
    const int image = city.tileImage(x, y);
    if (image == core::kTentImage) return;
    if (core::isHouseImage(image)) markBehind(city, x, y, kBehindNear);
    if (core::isApartmentImage(image)) markBehind(city, x, y, kBehindAll);
    dress(city, x, y, core::kTent);
    return;
  }
  // Deliberate: houses and apartments are dressed and marked in every call, changed or not, so any
  // press repaints them all; only a tent that stays one is left alone.
  markBehind(city, x, y, kBehindAll);
  dress(city, x, y, least > 9 ? core::kApartment : core::kHouse);
}

}  // namespace

void evolveResidences(City& city) {
  for (int x = 0; x <= kLastHousingCell; ++x) {
    for (int y = 0; y <= kLastHousingCell; ++y) {
      if (city.tileCode(x, y) == core::kResidenceCode) evolve(city, x, y);
    }
  }
}

}  // namespace sim
