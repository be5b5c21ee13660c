#include <gtest/gtest.h>

#include "sim/calendar.h"
#include "sim/city.h"
#include "sim/disasters.h"
#include "sim/food.h"
#include "sim/history.h"
#include "sim/population.h"
#include "sim/treasury.h"

namespace sim {
namespace {

TEST(Population, ComesByAFifthOrByOneAndLeavesAtOnce) {
  City city;
  city.game.housingCapacity = 100;
  for (const int expected :
       {20, 36, 48, 58, 66, 72, 77, 81, 84, 87, 89, 91, 92, 93, 94, 96, 97, 98, 99, 100, 100}) {
    movePopulation(city.game);
    EXPECT_EQ(city.game.population, expected);
  }
  city.game.housingCapacity = 35;
  movePopulation(city.game);
  EXPECT_EQ(city.game.population, 35);
}

TEST(Food, IsHarvestedEatenAndFlooredInThisOrder) {
  City city;
  city.values.gFertility = 1;
  city.game.farmCount = 1;
  city.game.food = 0;
  city.game.population = 100;
  harvest(city.game, city.values);
  consume(city.game);
  EXPECT_EQ(city.game.food, 8);
  EXPECT_TRUE(foodIsLow(city.game));
  city.game.food = 12;
  city.game.population = 96;
  EXPECT_FALSE(foodIsLow(city.game));  // an eighth is enough
  consume(city.game);
  EXPECT_EQ(city.game.food, 0);

  city.values.gMission = 8;
  city.game.gold = -20;
  EXPECT_STREQ(kingsAid(city.game, city.values), "The king has sent you foods and golds");
  EXPECT_EQ(city.game.food, 200);
  EXPECT_EQ(city.game.gold, 130);
  city.values.gMission = 6;
  EXPECT_EQ(kingsAid(city.game, city.values), nullptr);
}

TEST(Month, MovesItsSumOfGoldAndShowsThreeStagesOfTheFarms) {
  City city;
  city.block(core::buildingOfService(core::kTavern).code, 3, 3);
  city.single(core::kDoctorCode, 6, 6);
  city.farm(10, 10);
  city.block(core::kResidenceCode, 20, 20);
  city.game.population = 100;
  city.game.gold = 0;
  for (const int length : {30, 16}) {
    int stage = 0;
    for (int tick = 1; tick <= length; ++tick) {
      city.game.tickOfMonth = tick;
      if (growFarms(city.game)) {
        EXPECT_EQ(city.game.tileImage(12, 12), stage == 0 ? 13 : 53 + stage);
        EXPECT_EQ(tick, stage == 0 ? 1 : length / 3 * stage);
        ++stage;
      }
      moveMoney(city.game);
    }
    EXPECT_EQ(stage, 3);
    EXPECT_EQ(city.game.maintenanceThisMonth, 120);
    EXPECT_EQ(city.game.taxThisMonth, 75);
    city.game.month = 12;
    city.game.ticksPerMonth = 16;
    beginMonth(city.game, city.values);
    EXPECT_EQ(city.game.month, 1);
    EXPECT_EQ(city.game.monthLength, 16);
  }
  EXPECT_EQ(city.game.gold, -90);
  EXPECT_EQ(city.values.gYear, 2);
}

TEST(History, FloorsEachSumAndGoesOnFromColumnFour) {
  City city;
  city.values.gFertility = 0.8;
  city.game.farmCount = 1;
  city.game.population = 101;
  city.game.taxThisMonth = 10.25;
  city.game.maintenanceThisMonth = 5.5;
  city.game.constructionThisMonth = 40;
  city.game.history(3, 1) = 60;
  city.game.historyIndex = 43;
  city.game.tavernRating = 7;
  city.game.churchRating = 8;
  wrapHistory(city.game);
  writeHistory(city.game, city.values);
  constexpr int kRows[] = {101, 41, 10, -5, -40, -36, 26, -25, 1000, 0, 0, 8, 0, 7};
  for (int row = 1; row <= 14; ++row) EXPECT_EQ(city.game.history(4, row), kRows[row - 1]) << row;
}

TEST(History, DividesTheShareOfServedResidencesOutBeforeItIsFloored) {
  City city;
  for (int n = 0; n < 50; ++n) {
    city.game.tileCode(n % 30, n / 30) = core::kResidenceCode;
    city.game.cellService[core::kMarket](n % 30, n / 30) = n < 29 ? 1 : 0;
  }
  rateServices(city.game, city.game);
  EXPECT_EQ(city.game.marketRating, 57);
  EXPECT_EQ(city.game.schoolRating, 0);
}

TEST(Earthquake, DrawsForEachStandingCellAndClearsTheLayersOfWhatStands) {
  City city;
  core::GameState& g = city.game;
  city.block(core::kResidenceCode, 4, 4);
  city.block(core::kResidenceCode, 6, 4);  // wall to wall with the first
  city.block(core::buildingOfService(core::kMarket).code, 8, 7);
  city.farm(20, 20);
  g.roadService[core::kMarket](4, 6) = g.roadService[core::kDoctor](4, 6) = 1;
  // The first cell of one residence falls, the last of the other, the market survives.
  platform::Random random(nullptr);
  for (const double u : {0.0999, 0.1, 0.5, 0.99, 0.0, 0.1, 0.1, 0.1, 0.1, 0.625}) random.feed(u);
  collapse(g, random);
  EXPECT_EQ(random.uniform(), 0.625);
  for (int x = 4; x <= 7; ++x) EXPECT_EQ(g.tileCode(x, 5), 0);
  EXPECT_EQ(city.count(g.cellDirty), 8);
  EXPECT_EQ(g.tileCode(9, 8) + g.tileCode(20, 20), 24 + 81);
  EXPECT_EQ(g.roadService[core::kMarket](4, 6), 0);
  EXPECT_EQ(g.roadService[core::kDoctor](4, 6), 1);
}

}  // namespace
}  // namespace sim
