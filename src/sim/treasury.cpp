#include "sim/treasury.h"

#include "core/buildings.h"

namespace sim {

namespace {

constexpr int kLastScannedCell = core::kLastCell + 1;

// The anchor counts for its building, the other cells for nothing.
int upkeepOfCode(int code) {
  const core::Building* building = core::buildingOfCode(code);
  return building != nullptr && building->code == code ? building->upkeep : 0;
}

}  // namespace

void moveMoney(core::City& city) {
  int maintenance = 0;
  for (int y = 0; y <= kLastScannedCell; ++y) {
    for (int x = 0; x <= kLastScannedCell; ++x) maintenance += upkeepOfCode(city.tileCode(x, y));
  }
  city.maintenancePerMonth = maintenance;
  city.maintenancePerTick = city.maintenancePerMonth / city.monthLength;
  city.maintenanceThisMonth += city.maintenancePerTick;
  city.taxPerTick = city.population * 5 * city.taxRate / 100 / city.monthLength;
  city.taxThisMonth += city.taxPerTick;
  city.gold = city.gold - city.maintenancePerTick + city.taxPerTick;
}

}  // namespace sim
