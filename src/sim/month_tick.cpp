#include "sim/month_tick.h"

#include <cmath>

#include "core/vocabulary.h"

namespace sim {

namespace {

using core::GameState;
using core::Number;
using core::ProgramValues;

constexpr int kLastScannedCell = 31;

// After this column the book goes on in the column behind the three that a new game shows first.
constexpr int kLastHistoryColumn = 43;
constexpr int kHistoryRestart = 4;

// clang-format off
constexpr std::array<Milestone, kMilestones> kMilestoneTable{{
    // people  flag  button
    {    100,   1,    4,
     " Congratulations, your settlement  has more than 100 inhabitants,    you can now build church."},
    {    250,   2,    2,
     " Congratulations, your settlement  has more than 250 inhabitants,    you can now build school."},
    {    500,   3,    5,
     " Congratulations, your settlement  has more than 500 inhabitants,    you can now build doctor."},
    {   1000,   4,    3,
     " Congratulations, your settlement  has more than 1000 inhabitants,    you can now build tavern."},
}};
// clang-format on

Number& unlockedFlag(GameState& game, int n) {
  switch (n) {
    case 0:
      return game.churchUnlocked;
    case 1:
      return game.schoolUnlocked;
    case 2:
      return game.doctorUnlocked;
    default:
      return game.tavernUnlocked;
  }
}

double harvestOfMonth(const GameState& game, const ProgramValues& values) {
  return game.farmCount * 400 * values.gFertility / 12;
}

// Upkeep that a cell stands for: anchors stand for their building, the other cells for nothing.
int upkeepOfCode(int code) {
  switch (code) {
    case core::kMarketCode:
      return core::toolDesign(2).maintenance;
    case core::kSchoolCode:
      return core::toolDesign(3).maintenance;
    case core::kTavernCode:
      return core::toolDesign(4).maintenance;
    case core::kChurchCode:
      return core::toolDesign(5).maintenance;
    case core::kDoctorCode:
      return core::toolDesign(core::kDoctorTool).maintenance;
    case core::kFarmCode:
      return core::toolDesign(core::kFarmTool).maintenance;
    default:
      return 0;
  }
}

}  // namespace

void wrapHistory(GameState& game) {
  if (game.historyIndex == kLastHistoryColumn) game.historyIndex = kHistoryRestart;
}

const Milestone& milestone(int n) {
  return kMilestoneTable[static_cast<std::size_t>(n)];
}

bool reachMilestone(GameState& game, int n) {
  const Milestone& stone = milestone(n);
  Number& reached = unlockedFlag(game, n);
  if (reached != 0 || game.population < stone.population) return false;
  reached = 1;
  game.toolUnlocked[stone.toolFlag] = 1;
  return true;
}

void movePopulation(GameState& game) {
  const double room = game.housingCapacity;
  double people = game.population;
  if (people < room) {
    // Wanted: the second look sees the people that the first has brought, so near the end a tick
    // can bring both the fifth of the gap and the single one.
    if ((room - people) / 5 > 1) people += (room - people) / 5;
    if ((room - people) / 5 <= 1) people += 1;
    if (people >= room) people = room;
    people = std::floor(people);
  }
  if (people > room) people = room;
  game.population = people;
}

bool growFarms(GameState& game) {
  const double third = std::floor(game.monthLength / 3);
  int image = 0;
  if (game.tickOfMonth == 1) image = core::kFarmImage1;
  if (game.tickOfMonth == third) image = core::kFarmImage2;
  if (game.tickOfMonth == 2 * third) image = core::kFarmImage3;
  if (image == 0) return false;
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      if (!core::isFarmCode(game.tileCode(x, y))) continue;
      game.tileImage(x, y) = static_cast<std::int16_t>(image);
      game.cellDirty(x, y) = 1;
    }
  }
  return true;
}

void beginMonth(GameState& game, ProgramValues& values) {
  if (game.monthLength != game.ticksPerMonth) game.monthLength = game.ticksPerMonth;
  game.historyIndex += 1;
  game.month += 1;
  if (game.month == 13) {
    values.gYear += 1;
    game.month = 1;
  }
  game.constructionThisMonth = 0;
  game.maintenanceThisMonth = 0;
  game.taxThisMonth = 0;
  game.tickOfMonth = 0;
}

void harvest(GameState& game, const ProgramValues& values) {
  game.food += harvestOfMonth(game, values);
}

const char* kingsAid(GameState& game, const ProgramValues& values) {
  if (values.gMission == 4 || values.gMission == 5) {
    game.food += 100;
    return "The king has sent you 100 units of food";
  }
  if (values.gMission == 7 || values.gMission == 8) {
    game.food += 200;
    game.gold += 150;
    return "The king has sent you foods and golds";
  }
  return nullptr;
}

void consume(GameState& game) {
  game.food = std::floor(game.food - game.population / 4);
  if (game.food < 0) game.food = 0;
}

bool foodIsLow(const GameState& game) {
  return game.food > 0 && game.food < game.population / 8;
}

FamineStep stepFamine(GameState& game) {
  const bool fed = game.food > 0;
  const double before = game.famineState;
  FamineStep step;
  step.banner = before == 0 && !fed;
  step.rebuild = step.banner || before == 1 || (before == 2 && fed);
  if (step.rebuild) game.famineState = fed ? 0 : 2;
  return step;
}

void moveMoney(GameState& game) {
  int maintenance = 0;
  for (int y = 0; y <= kLastScannedCell; ++y) {
    for (int x = 0; x <= kLastScannedCell; ++x) maintenance += upkeepOfCode(game.tileCode(x, y));
  }
  game.maintenancePerMonth = maintenance;
  game.maintenancePerTick = game.maintenancePerMonth / game.monthLength;
  game.maintenanceThisMonth += game.maintenancePerTick;
  game.taxPerTick = game.population * 5 * game.taxRate / 100 / game.monthLength;
  game.taxThisMonth += game.taxPerTick;
  game.gold = game.gold - game.maintenancePerTick + game.taxPerTick;
}

void writeHistory(GameState& game, const ProgramValues& values) {
  const int column = game.historyIndex.whole();
  const auto row = [&](int n) -> Number& { return game.history(column, n); };
  row(1) = game.population;
  row(2) = game.population - game.history(column - 1, 1);
  row(3) = std::floor(game.taxThisMonth);
  row(4) = 0 - std::floor(game.maintenanceThisMonth);
  row(5) = 0 - game.constructionThisMonth;
  row(6) = std::floor(game.taxThisMonth - game.maintenanceThisMonth - game.constructionThisMonth);
  row(7) = std::floor(harvestOfMonth(game, values));
  row(8) = 0 - std::floor(game.population / 4);
  row(9) = std::floor(game.food);
  row(10) = game.marketRating;
  row(11) = game.schoolRating;
  row(12) = game.churchRating;
  row(13) = game.doctorRating;
  row(14) = game.tavernRating;
}

void rateServices(GameState& game) {
  for (const int k : {core::kMarket, core::kTavern, core::kChurch, core::kSchool, core::kDoctor}) {
    int with = 0;
    int without = 0;
    for (int y = 0; y <= kLastScannedCell; ++y) {
      for (int x = 0; x <= kLastScannedCell; ++x) {
        if (!core::isResidenceCode(game.tileCode(x, y))) continue;
        if (game.cellService[k](x, y) == 1) {
          ++with;
        } else {
          ++without;
        }
      }
    }
    game.withAccess = with;
    game.withoutAccess = without;
    // Wanted: the share is divided out first, so 29 of 50 residences show as 57.
    core::rating(game, k) =
        with == 0 ? 0 : std::floor(static_cast<double>(with) / (with + without) * 100);
  }
}

}  // namespace sim
