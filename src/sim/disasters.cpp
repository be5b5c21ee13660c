#include "sim/disasters.h"

#include <array>
#include <cmath>

#include "core/cell.h"
#include "core/missions.h"
#include "sim/flood.h"

namespace sim {

namespace {

using core::City;
using core::kLastCell;
using core::ProgramValues;

constexpr int kShakePixels = 32;
constexpr int kShakeTicks = 60;
bool strikes(const core::Strike& strike, const City& city, const ProgramValues& values) {
  return strike.month != 0 && city.month == strike.month &&
         (strike.year == 0 || values.gYear == strike.year);
}

// Roads and farms need no road.
bool needsRoad(int code) {
  const core::Building* building = core::buildingOfCode(code);
  return building != nullptr && building->code == code && code != core::kRoadCode &&
         !core::isFarmCode(code);
}

// A building that needs a road and has none, seen from its anchor.
bool isCutOff(const City& city, int x, int y) {
  return needsRoad(city.tileCode(x, y)) && !hasRoad(city, x, y);
}

}  // namespace

bool earthquakeDue(const City& city, const ProgramValues& values) {
  const core::Mission* mission = core::missionOf(values.gMission);
  return mission != nullptr && strikes(mission->earthquake, city, values);
}

void beginEarthquake(core::Earthquake& quake, const City& city) {
  quake.quakeShakePhase = 0;
  quake.quakeShakeTicks = 0;
  quake.populationBeforeQuake = city.population;
}

bool shake(core::Earthquake& quake) {
  ++quake.quakeShakePhase;
  ++quake.quakeShakeTicks;
  if (quake.quakeShakePhase == 2) quake.quakeShakePhase = 0;
  return quake.quakeShakeTicks >= kShakeTicks;
}

int shakeOffset(const core::Earthquake& quake) {
  return quake.quakeShakePhase == 1 ? -kShakePixels : 0;
}

void collapse(City& city, platform::Random& random) {
  std::array<bool, core::kServices + 1> cleared{};
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      const int code = city.tileCode(x, y);
      if (code == core::kEmptyCode || code == core::kRoadCode || core::isFarmCode(code)) continue;
      // A layer is cleared for a building that survives as well as for one that falls: the flood that
      // follows refills it, but over long roads only as far as one flood carries.
      const int k = core::serviceOfCode(code);
      if (k != 0 && !cleared[k]) {
        clearLayer(city, k);
        cleared[k] = true;
      }
      // Every cell draws until one brings its building down: the larger the building, the sooner.
      const double draw = std::floor(10 * random.uniform() + 1);
      if (draw == 1) core::clearBuilding(city, {x, y}, 1);
    }
  }
}

void endEarthquake(core::Earthquake& quake) {
  quake.quakeReportPending = 1;
  quake.quakeShakeTicks = 0;
}

bool theftDue(const City& city, const ProgramValues& values) {
  const core::Mission* mission = core::missionOf(values.gMission);
  return mission != nullptr && strikes(mission->theft, city, values);
}

double steal(City& city) {
  const double stolen = std::floor(city.gold * 0.25);
  city.gold = std::floor(city.gold * 0.75);
  return stolen;
}

bool hasRoad(const City& city, int x, int y) {
  const int code = city.tileCode(x, y);
  if (!needsRoad(code)) return false;
  const bool block = core::buildingOfCode(code)->side == 2;
  return block ? core::touchesRoad(city, {x, y}, core::kRingOfBlock)
               : core::touchesRoad(city, {x, y}, core::kNeighbours);
}

bool anyBuildingWithoutRoad(const City& city) {
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      if (isCutOff(city, x, y)) return true;
    }
  }
  return false;
}

void removeBuildingsWithoutRoad(City& city) {
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      if (!isCutOff(city, x, y)) continue;
      // Wide enough for every building, with the cells that its picture overlaps.
      constexpr int kReach = 3;
      core::clearBuilding(city, {x, y}, kReach);
      core::markAround(city, {x, y}, kReach);
    }
  }
}

}  // namespace sim
