#include "sim/disasters.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/vocabulary.h"
#include "sim/coverage.h"

namespace sim {

namespace {

using core::CellOffset;
using core::GameState;
using core::kLastCell;
using core::ProgramValues;

constexpr int kShakePixels = 32;
constexpr int kShakeTicks = 60;
constexpr int kLastImageCell = decltype(GameState::tileImage)::kHighX;

// Leaves bare ground on every cell of a building within `reach` cells of one of its cells. The
// cells keep their building id. Cells beyond the pictures hold nothing that could be cleared.
void clearBuilding(GameState& game, int x, int y, int reach) {
  const double id = game.buildingId(x, y);
  for (int b = std::max(y - reach, 0); b <= std::min(y + reach, kLastImageCell); ++b) {
    for (int a = std::max(x - reach, 0); a <= std::min(x + reach, kLastImageCell); ++a) {
      if (game.buildingId(a, b) != id) continue;
      game.tileCode(a, b) = core::kEmptyCode;
      game.tileImage(a, b) = core::kGroundImage;
      game.cellTall(a, b) = 0;
      game.cellDirty(a, b) = 1;
    }
  }
}

bool isAnchorOfBlock(int code) {
  return code == core::kResidenceCode || code == core::kMarketCode || code == core::kSchoolCode ||
         code == core::kTavernCode || code == core::kChurchCode;
}

template <class Offsets>
bool roadAt(const GameState& game, int x, int y, const Offsets& offsets) {
  return std::any_of(offsets.begin(), offsets.end(), [&](CellOffset cell) {
    return game.tileCode(x + cell.x, y + cell.y) == core::kRoadCode;
  });
}

// A building that needs a road and has none, told by its anchor. Farms need none.
bool isCutOff(const GameState& game, int x, int y) {
  const int code = game.tileCode(x, y);
  return (isAnchorOfBlock(code) || code == core::kDoctorCode) && !hasRoad(game, x, y);
}

}  // namespace

bool earthquakeDue(const GameState& game, const ProgramValues& values) {
  return values.gMission == 3 && game.month == 3;
}

void beginEarthquake(GameState& game) {
  game.quakeShakePhase = 0;
  game.quakeShakeTicks = 0;
  game.populationBeforeQuake = game.population;
}

bool shake(GameState& game) {
  ++game.quakeShakePhase;
  ++game.quakeShakeTicks;
  if (game.quakeShakePhase == 2) game.quakeShakePhase = 0;
  return game.quakeShakeTicks >= kShakeTicks;
}

int shakeOffset(const GameState& game) {
  return game.quakeShakePhase == 1 ? -kShakePixels : 0;
}

void collapse(GameState& game, platform::Random& random) {
  std::array<bool, core::kServices + 1> cleared{};
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      const int code = game.tileCode(x, y);
      if (code == core::kEmptyCode || code == core::kRoadCode || core::isFarmCode(code)) continue;
      // A layer is cleared for a building that stands as well as for one that falls: the flood that
      // follows refills it, but over long roads only as far as one flood carries.
      const int k = core::serviceOfCode(code);
      if (k != 0 && !cleared[static_cast<std::size_t>(k)]) {
        clearLayer(game, k);
        cleared[static_cast<std::size_t>(k)] = true;
      }
      // Every cell draws until one brings its building down: the larger the building, the sooner.
      const double draw = std::floor(10 * random.uniform() + 1);
      if (draw == 1) clearBuilding(game, x, y, 1);
    }
  }
}

void endEarthquake(GameState& game) {
  game.quakeReportPending = 1;
  game.quakeShakeTicks = 0;
}

bool theftDue(const GameState& game, const ProgramValues& values) {
  return values.gMission == 2 && values.gYear == 1718 && game.month == 2;
}

double steal(GameState& game) {
  const double stolen = std::floor(game.gold * 0.25);
  game.gold = std::floor(game.gold * 0.75);
  return stolen;
}

bool hasRoad(const GameState& game, int x, int y) {
  const int code = game.tileCode(x, y);
  if (code == core::kDoctorCode) return roadAt(game, x, y, core::kNeighbours);
  return isAnchorOfBlock(code) && roadAt(game, x, y, core::kRingOfBlock);
}

bool anyBuildingWithoutRoad(const GameState& game) {
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      if (isCutOff(game, x, y)) return true;
    }
  }
  return false;
}

void removeBuildingsWithoutRoad(GameState& game) {
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      if (!isCutOff(game, x, y)) continue;
      // Wide enough for every building, with the cells that its picture overlaps.
      constexpr int kReach = 3;
      clearBuilding(game, x, y, kReach);
      for (int b = y - kReach; b <= y + kReach; ++b) {
        for (int a = x - kReach; a <= x + kReach; ++a) game.cellDirty(a, b) = 1;
      }
    }
  }
}

}  // namespace sim
