// The rules of the city: people, food, money, disasters, and how services reach residences.
#include <gtest/gtest.h>

#include "platform/random.h"
#include "sim/calendar.h"
#include "sim/city.h"
#include "sim/coverage.h"
#include "sim/disasters.h"
#include "sim/flood.h"
#include "sim/food.h"
#include "sim/history.h"
#include "sim/population.h"
#include "sim/residences.h"
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

TEST(Earthquake, DrawsForEachCellThatIsLeftAndClearsTheLayersOfEachService) {
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
  EXPECT_EQ(g.tileCode(9, 8), 24);
  EXPECT_EQ(g.tileCode(20, 20), 81);
  EXPECT_EQ(g.roadService[core::kMarket](4, 6), 0);
  EXPECT_EQ(g.roadService[core::kDoctor](4, 6), 1);
}

using core::GameState;
using core::kDoctor;

// The rule of the flood in its plain form: a residence just placed, the doors of the buildings, twelve
// passes in which every cell is visited every time. What is on the pressed cell is not checked.
void floodPlainly(core::City& g, std::optional<core::Cell> placed) {
  for (int k = 1; k <= 5 && placed; ++k) {
    bool carried = false, covered = false;
    for (int n = 0; n < 16; ++n) {
      const int a = n % 4 - 1, b = n / 4 - 1;
      const bool besideX = a == -1 || a == 2, besideY = b == -1 || b == 2;
      const int x = placed->x + a, y = placed->y + b;
      if (besideX != besideY) carried |= g.roadService[k](x, y) == 1;
      if (!besideX && !besideY) covered |= core::coverGrid(g, k)(x, y) == 1;
    }
    for (int n = 0; n < 4 && carried && covered; ++n) {
      g.cellService[k](placed->x + n % 2, placed->y + n / 2) = 1;
    }
  }
  const auto side = [&](int k, int x, int y, int one, int other) {
    const int code = g.tileCode(x, y);
    if (core::serviceOfCode(code) != k) return false;
    return k == kDoctor || code % 10 == one || code % 10 == other;
  };
  for (int y = 0; y <= 30; ++y) {
    for (int x = 0; x <= 30; ++x) {
      for (int k = 1; k <= 5 && g.tileCode(x, y) == 7; ++k) {
        if (side(k, x - 1, y, 2, 4) || side(k, x, y - 1, 3, 4) || side(k, x + 1, y, 1, 3) ||
            side(k, x, y + 1, 1, 2)) {
          g.roadService[k](x, y) = 1;
        }
      }
    }
  }
  for (int pass = 1; pass <= 12; ++pass) {
    for (int y = 0; y <= 30; ++y) {
      for (int x = 0; x <= 30; ++x) {
        for (int k = 1; k <= 5; ++k) {
          auto& road = g.roadService[k];
          auto& cell = g.cellService[k];
          const bool beside = road(x - 1, y) == 1 || road(x + 1, y) == 1 || road(x, y - 1) == 1 ||
                              road(x, y + 1) == 1;
          if (g.tileCode(x, y) == 7 && road(x, y) == 0 && beside) road(x, y) = 1;
          if (!core::isResidenceCode(g.tileCode(x, y))) continue;
          if (beside && core::coverGrid(g, k)(x, y) == 1) cell(x, y) = 1;
          for (int n = 0; n < 9 && cell(x, y) == 1; ++n) {
            const int a = x - 1 + n % 3;
            const int b = y - 1 + n / 3;
            if (g.buildingId(a, b) == g.buildingId(x, y)) cell(a, b) = 1;
          }
        }
      }
    }
  }
}

TEST(Flood, DoesExactlyWhatThePlainRuleDoes) {
  platform::Random random(nullptr, 11);
  const auto whole = [&](int below) { return static_cast<int>(below * random.uniform()); };
  constexpr int kBuilt[] = {6, 21, 22, 23, 24, 31, 34, 42, 43, 51, 54, 81};
  for (int city = 0; city < 60; ++city) {
    City fast;
    GameState& g = fast.game;
    const int roads = 30 + whole(60);
    for (int y = -1; y <= 31; ++y) {
      for (int x = -1; x <= 31; ++x) {
        const bool isRoad = whole(100) < roads;
        const bool lives = whole(100) < 60;
        g.tileCode(x, y) = isRoad ? 7 : lives ? 11 + whole(4) : kBuilt[whole(12)];
        if (whole(20) == 0) g.tileCode(x, y) = 0;
        g.buildingId(x, y) = 1 + whole(3);
        const int k = 1 + whole(5);
        if (whole(60) == 0) g.roadService[k](x, y) = 1;
        if (whole(60) == 0) g.cellService[k](x, y) = 1;
        core::coverGrid(g, k)(x, y) = whole(3) == 0;
      }
    }
    City plain = fast;
    for (int flood = 0; flood < 4; ++flood) {
      std::optional<core::Cell> placed;
      if (whole(3) == 0) placed = core::Cell{whole(30), whole(30)};
      floodServices(g, placed);
      floodPlainly(plain.game, placed);
      for (int n = 0; n < 5 * 50 * 50; ++n) {
        const int k = 1 + n / 2500;
        const int x = n % 50 - 10;
        const int y = n / 50 % 50 - 10;
        for (auto layers : {&GameState::roadService, &GameState::cellService}) {
          const core::Flag flag = (g.*layers)[k](x, y);
          const core::Flag wanted = (plain.game.*layers)[k](x, y);
          ASSERT_TRUE(flag == wanted && flag.isSet() == wanted.isSet())
              << "city " << city << " service " << k << " at " << x << ", " << y;
        }
      }
    }
  }
}

TEST(Coverage, EachCellOfABuildingCastsItsSquare) {
  City city;
  for (const auto& [code, at] : {std::pair{core::buildingOfService(core::kMarket).code, 10},
                                 {core::buildingOfService(core::kSchool).code, 1},
                                 {core::buildingOfService(core::kTavern).code, 28},
                                 {core::buildingOfService(core::kChurch).code, 20}}) {
    city.block(code, at, at);
  }
  city.block(core::buildingOfService(core::kSchool).code, 34,
             34);  // at the rim of the tables nothing is written beside them
  city.single(core::kDoctorCode, 4, 20);
  city.rebuild();
  for (const auto& [k, area] : {std::pair{1, 144}, {2, 196 + 144}, {3, 100}, {4, 144}, {5, 81}}) {
    EXPECT_EQ(city.count(core::coverGrid(city.game, k)), area) << k;
  }
  EXPECT_EQ(city.game.marketCover(5, 16), 1);
  EXPECT_EQ(city.game.marketCover(16, 5), 1);
  city.game.cellTall(2, 2) = 1;  // no flag is cleared
  markObjectCells(city.game);
  EXPECT_EQ(city.count(city.game.cellTall), 4 * 3 + 1 + 1);
}

TEST(Residences, HouseAndShowWhatServicesTaxAndFoodAllow) {
  City city;
  core::GameState& g = city.game;
  city.block(core::kResidenceCode, 5, 5);
  const struct {
    int services, tax, food, housing, image, tall, marked;
  } steps[] = {{0, 15, 1, 8, 4, 0, 4},    {1, 15, 1, 16, 4, 0, 0},   {4, 20, 1, 36, 19, 0, 12},
               {4, 20, 1, 36, 19, 0, 12},  // a house is marked again though nothing changed
               {5, 15, 1, 48, 3, 1, 12},  {5, 30, 1, 33, 19, 0, 12}, {4, 15, 1, 40, 3, 1, 12},
               {2, 15, 1, 24, 19, 0, 12}, {0, 15, 1, 8, 4, 0, 9},    {5, 0, 1, 62, 3, 1, 12},
               {1, 0, 0, 16, 4, 0, 12},   {0, 0, 0, 10, 4, 0, 0}};
  for (const auto& [services, tax, food, housing, image, tall, marked] : steps) {
    g.taxRate = tax;
    g.food = food;
    g.cellDirty.fill(0);
    city.serve(5, 5, services);
    EXPECT_EQ(g.housingCapacity, housing);
    EXPECT_EQ(g.tileImage(5, 5), image);
    EXPECT_EQ(g.cellTall(5, 5), tall);
    EXPECT_EQ(city.count(g.cellDirty), marked) << services << " services at " << tax;
  }
  // The floor comes once, after the sum: twice 17.6 are 35.
  g.food = 0.5;
  g.taxRate = 10;
  city.block(core::kResidenceCode, 28, 28);
  city.serve(28, 28, 1);
  city.serve(5, 5, 1);
  EXPECT_EQ(g.housingCapacity, 35);
  // The poorest cell decides how all four look.
  city.serve(5, 5, 5);
  g.cellCapacity(6, 6) = 4;
  evolveResidences(g);
  EXPECT_EQ(g.tileImage(5, 5), 4);
}

}  // namespace
}  // namespace sim
