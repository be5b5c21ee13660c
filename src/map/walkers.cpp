#include "map/walkers.h"

#include <cmath>

#include "core/cell.h"
#include "core/new_game.h"
#include "core/vocabulary.h"
#include "map/walker_designs.h"

namespace map {

namespace {

using core::GameState;
using core::kWalkers;

constexpr int kFewestPeople = 20;
constexpr int kBusyBlits = 100;  // more than this in the current 200 ms: the screen is busy
constexpr int kMostWalkers = 8;  // one tick may add two
constexpr int kFrames = 4;
constexpr int kCellPixels = 32;  // pixels across that make one cell
constexpr int kMostCells = 30;

/// The roads of one axis: the picture, the step along it, and its first direction.
struct Lane {
  int image;
  core::CellOffset along;
  int firstDirection;
};
constexpr Lane kLaneAlongY{core::kRoadAlongY, {0, 1}, 0};
constexpr Lane kLaneAlongX{core::kRoadAlongX, {1, 0}, 2};

/// Straight road with straight road on both sides: a walker gets at least one cell to walk.
bool isLaneCell(const core::City& city, const Lane& lane, int x, int y) {
  return city.tileImage(x, y) == lane.image &&
         city.tileImage(x - lane.along.x, y - lane.along.y) == lane.image &&
         city.tileImage(x + lane.along.x, y + lane.along.y) == lane.image;
}

int countLaneCells(const core::City& city, const Lane& lane) {
  int count = 0;
  for (int y = 1; y < core::kLastCell; ++y) {
    for (int x = 1; x < core::kLastCell; ++x) count += isLaneCell(city, lane, x, y);
  }
  return count;
}

/// Rolls for each lane cell in turn until one is taken; often none is, and no walker starts.
bool takeLaneCell(core::Walkers& walkers, const core::City& city, const Lane& lane, int count,
                  platform::Random& random) {
  for (int y = 1; y < core::kLastCell; ++y) {
    for (int x = 1; x < core::kLastCell; ++x) {
      if (!isLaneCell(city, lane, x, y)) continue;
      if (std::floor(count * random.uniform() + 1) != 1) continue;
      walkers.spawnX = x;
      walkers.spawnY = y;
      return true;
    }
  }
  return false;
}

int lowestFreeSlot(const core::Walkers& walkers) {
  int slot = 1;
  while (walkers.walkerActive[slot] != 0) ++slot;
  return slot;
}

bool spawnOn(core::Walkers& walkers, const core::City& city, const Lane& lane, int count,
             platform::Random& random) {
  if (!takeLaneCell(walkers, city, lane, count, random)) return false;
  const bool first = std::floor(2 * random.uniform() + 1) == 1;
  const int slot = lowestFreeSlot(walkers);
  walkers.freeWalkerSlot = slot;
  walkers.walkerX[slot] = walkers.spawnX;
  walkers.walkerY[slot] = walkers.spawnY;
  walkers.walkerDir[slot] = first ? lane.firstDirection : lane.firstDirection + 1;
  walkers.walkerActive[slot] = 1;
  return true;
}

// The look ahead comes before the move, at every step: a walker ends as it enters the last straight
// cell of its road, not at that cell's far end.
void step(core::Walkers& walkers, const core::City& city, int slot) {
  const WalkerDesign& design = walkerDesign(walkers.walkerDir[slot]);
  const int aheadX = walkers.walkerX[slot] + walkers.walkerCellDX[slot] + design.cellStep.x;
  const int aheadY = walkers.walkerY[slot] + walkers.walkerCellDY[slot] + design.cellStep.y;
  // A file may hold a road up to the very rim of the map, beyond which there are no pictures.
  if (!core::hasImage(aheadX, aheadY) || city.tileImage(aheadX, aheadY) != design.road) {
    walkers.walkerDone[slot] = 1;
  }

  if (++walkers.walkerFrame[slot] == kFrames) walkers.walkerFrame[slot] = 0;
  walkers.walkerPxX[slot] += design.pixelStep.x;
  walkers.walkerPxY[slot] += design.pixelStep.y;

  const int px = walkers.walkerPxX[slot];
  if (px % kCellPixels == 0 && px / kCellPixels >= -kMostCells && px / kCellPixels <= kMostCells) {
    walkers.walkerCellDX[slot] += design.cellStep.x;
    walkers.walkerCellDY[slot] += design.cellStep.y;
  }
}

}  // namespace

bool spawnWalkers(core::Walkers& walkers, const core::City& city, const core::Drawing& drawing,
                  platform::Random& random) {
  if (city.population < kFewestPeople) return false;
  if (drawing.blitCount > kBusyBlits) return false;
  walkers.activeWalkers = 0;
  for (int slot = 1; slot <= kWalkers; ++slot)
    walkers.activeWalkers += walkers.walkerActive[slot] == 1;
  if (walkers.activeWalkers > kMostWalkers) return false;

  walkers.laneCount = countLaneCells(city, kLaneAlongY);
  walkers.laneCount2 = countLaneCells(city, kLaneAlongX);
  const bool alongY = spawnOn(walkers, city, kLaneAlongY, walkers.laneCount, random);
  const bool alongX = spawnOn(walkers, city, kLaneAlongX, walkers.laneCount2, random);
  return alongY || alongX;
}

void stepWalkers(Stage& stage) {
  GameState& game = stage.game;
  for (int slot = 1; slot <= kWalkers; ++slot) {
    if (game.walkerActive[slot] == 1) step(game, game, slot);
  }
  DrawTiles4(stage);
  for (int slot = 1; slot <= kWalkers; ++slot) {
    if (game.walkerDone[slot] == 1) core::clearWalker(game, slot);
  }
}

}  // namespace map
