#include "sim/history.h"

#include <cmath>

#include "core/buildings.h"
#include "sim/food.h"

namespace sim {

namespace {

// After this column the book continues in the column after the three that a new game shows first.
constexpr int kLastHistoryColumn = 43;
constexpr int kHistoryRestart = 4;
constexpr int kLastScannedCell = core::kLastCell + 1;

}  // namespace

void wrapHistory(core::City& city) {
  if (city.historyIndex == kLastHistoryColumn) city.historyIndex = kHistoryRestart;
}

void writeHistory(core::City& city, const core::ProgramValues& values) {
  const int column = city.historyIndex.whole();
  const auto row = [&](int n) -> core::Number& { return city.history(column, n); };
  row(1) = city.population;
  row(2) = city.population - city.history(column - 1, 1);
  row(3) = std::floor(city.taxThisMonth);
  row(4) = 0 - std::floor(city.maintenanceThisMonth);
  row(5) = 0 - city.constructionThisMonth;
  row(6) = std::floor(city.taxThisMonth - city.maintenanceThisMonth - city.constructionThisMonth);
  row(7) = std::floor(harvestOfMonth(city, values));
  row(8) = 0 - std::floor(city.population / 4);
  row(9) = std::floor(city.food);
  for (int k = 1; k <= core::kServices; ++k) {
    row(core::buildingOfService(k).bookRow) = core::rating(city, k);
  }
}

void rateServices(core::City& city, core::RecordNumbers& numbers) {
  for (int k = 1; k <= core::kServices; ++k) {
    int with = 0;
    int without = 0;
    for (int y = 0; y <= kLastScannedCell; ++y) {
      for (int x = 0; x <= kLastScannedCell; ++x) {
        if (!core::isResidenceCode(city.tileCode(x, y))) continue;
        if (city.cellService[k](x, y) == 1) {
          ++with;
        } else {
          ++without;
        }
      }
    }
    numbers.withAccess = with;
    numbers.withoutAccess = without;
    // Deliberate: the share is divided out first, so 29 of 50 residences show as 57.
    core::rating(city, k) =
        with == 0 ? 0 : std::floor(static_cast<double>(with) / (with + without) * 100);
  }
}

}  // namespace sim
