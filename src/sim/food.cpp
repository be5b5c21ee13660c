#include "sim/food.h"

#include <cmath>

#include "core/missions.h"
#include "core/vocabulary.h"

namespace sim {

bool growFarms(core::City& city) {
  const double third = std::floor(city.monthLength / 3);
  int image = 0;
  if (city.tickOfMonth == 1) image = core::kFarmImage1;
  if (city.tickOfMonth == third) image = core::kFarmImage2;
  if (city.tickOfMonth == 2 * third) image = core::kFarmImage3;
  if (image == 0) return false;
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      if (!core::isFarmCode(city.tileCode(x, y))) continue;
      city.tileImage(x, y) = image;
      city.cellDirty(x, y) = 1;
    }
  }
  return true;
}

double harvestOfMonth(const core::City& city, const core::ProgramValues& values) {
  return city.farmCount * 400 * values.gFertility / 12;
}

void harvest(core::City& city, const core::ProgramValues& values) {
  city.food += harvestOfMonth(city, values);
}

const char* kingsAid(core::City& city, const core::ProgramValues& values) {
  const core::Mission* mission = core::missionOf(values.gMission);
  if (mission == nullptr || mission->aid.news == nullptr) return nullptr;
  city.food += mission->aid.food;
  city.gold += mission->aid.gold;
  return mission->aid.news;
}

void consume(core::City& city) {
  city.food = std::floor(city.food - city.population / 4);
  if (city.food < 0) city.food = 0;
}

bool foodIsLow(const core::City& city) {
  return city.food > 0 && city.food < city.population / 8;
}

FamineStep stepFamine(core::City& city) {
  const bool fed = city.food > 0;
  const double before = city.famineState;
  FamineStep step;
  step.banner = before == 0 && !fed;
  step.rebuild = step.banner || before == 1 || (before == 2 && fed);
  if (step.rebuild) city.famineState = fed ? 0 : 2;
  return step;
}

}  // namespace sim
