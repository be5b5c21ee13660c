#include "sim/coverage.h"

#include <gtest/gtest.h>

#include "platform/random.h"
#include "sim/city.h"

namespace sim {
namespace {

using core::GameState;
using core::kDoctor;
using core::kMarket;

// The rule of the flood, told plainly: five services, twelve passes, every cell asked every time.
void floodPlainly(GameState& g) {
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
        core::coverGrid(g, k)(x, y) = whole(2);
      }
    }
    City plain = fast;
    for (int flood = 0; flood < 2; ++flood) {
      floodServices(g, FloodCause::press);
      floodPlainly(plain.game);
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

TEST(Flood, RunsAnyWayWithTheScanAndTwelveCellsAgainstIt) {
  City city;
  city.road(2, 10, 21, 10);
  city.block(core::kMarketCode, 22, 10);
  city.rebuild();
  EXPECT_EQ(city.count(city.game.roadService[kMarket]), 13);
  city.rebuild();
  EXPECT_EQ(city.count(city.game.roadService[kMarket]), 20);
  city.road(24, 9, 24, 29);  // meets the market's side at (24, 10)
  city.road(12, 9, 12, 9);
  city.rebuild();
  EXPECT_EQ(city.count(city.game.roadService[kMarket]), 42);
}

TEST(Flood, APressServesThePlacedBlockByItsFarCellUntilTheLayerIsCleared) {
  City city;
  city.block(core::kMarketCode, 10, 10);  // reaches x 16
  city.road(12, 8, 12, 10);
  city.road(13, 8, 18, 8);
  city.road(18, 9, 18, 10);
  city.block(core::kResidenceCode, 16, 10);  // its column 17 touches the road, 16 is covered
  city.game.cellX = 16;
  city.game.cellY = 10;
  const auto served = [&](FloodCause cause, int lastTool) {
    city.game.lastPaletteTool = lastTool;
    city.rebuild(cause);
    return city.count(city.game.cellService[kMarket]);
  };
  EXPECT_EQ(served(FloodCause::press, 8), 0);
  EXPECT_EQ(served(FloodCause::other, 1), 0);
  EXPECT_EQ(served(FloodCause::press, 1), 4);
  EXPECT_EQ(served(FloodCause::other, 8), 4);
  clearLayer(city.game, kMarket);
  EXPECT_EQ(city.count(city.game.roadService[kMarket]), 0);
  EXPECT_EQ(served(FloodCause::press, 1), 0);  // the step sees only what roads carried before
  for (int n = 0; n < 4; ++n) city.game.tileCode(16 + n % 2, 10 + n / 2) = 0;
  EXPECT_EQ(served(FloodCause::press, 1), 4);  // nobody asks what stands there
  city.game.cellX = 19;                        // beside the road, but no cell is covered
  EXPECT_EQ(served(FloodCause::press, 1), 4);
}

TEST(Coverage, EachCellOfABuildingCastsItsSquare) {
  City city;
  city.block(core::kMarketCode, 10, 10);
  city.block(core::kSchoolCode, 1, 1);
  city.block(core::kTavernCode, 28, 28);
  city.block(core::kChurchCode, 20, 4);
  city.single(core::kDoctorCode, 4, 20);
  city.rebuild();
  constexpr int kAreas[] = {144, 196, 100, 144, 81};
  for (int k = 1; k <= 5; ++k) {
    EXPECT_EQ(city.count(core::coverGrid(city.game, k)), kAreas[k - 1]);
  }
  EXPECT_EQ(city.game.marketCover(5, 16) + city.game.marketCover(16, 5), 2);
  city.game.cellTall(2, 2) = 1;  // no flag is cleared
  markObjectCells(city.game);
  EXPECT_EQ(city.count(city.game.cellTall), 4 * 3 + 1 + 1);

  // What stands at the rim of the tables writes nothing beside them.
  city.block(core::kSchoolCode, 34, 34);
  city.rebuild();
  EXPECT_EQ(city.count(city.game.schoolCover), 196 + 12 * 12);
}

TEST(Capacity, FollowsServicesTaxAndFood) {
  City city;
  city.block(core::kResidenceCode, 5, 5);
  const auto housing = [&](int services, int tax) {
    city.game.taxRate = tax;
    city.serve(5, 5, services);
    return static_cast<double>(city.game.housingCapacity);
  };
  EXPECT_EQ(housing(0, 15), 8);
  EXPECT_EQ(housing(5, 15), 48);
  EXPECT_EQ(housing(5, 0), 62);
  EXPECT_EQ(housing(5, 30), 33);
  city.game.food = 0;
  EXPECT_EQ(housing(1, 0), 16);
  EXPECT_EQ(housing(0, 0), 10);

  // The floor comes once, after the sum: twice 17.6 are 35.
  city.game.food = 0.5;
  city.block(core::kResidenceCode, 28, 28);
  city.serve(28, 28, 1);
  EXPECT_EQ(housing(1, 10), 35);
}

TEST(Evolution, ThresholdsAreStrictAndThePoorestCellDecides) {
  City city;
  core::GameState& g = city.game;
  city.block(core::kResidenceCode, 5, 5);
  // Picture and tall flag of the anchor, and how many cells were marked.
  const auto expectStage = [&](int services, int tax, int image, int tall, int marked) {
    g.taxRate = tax;
    g.cellDirty.fill(0);
    city.serve(5, 5, services);
    EXPECT_EQ(g.tileImage(5, 5), image);
    EXPECT_EQ(g.cellTall(5, 5), tall);
    EXPECT_EQ(city.count(g.cellDirty), marked) << services << " services at " << tax;
  };
  expectStage(1, 15, 4, 0, 4);
  expectStage(1, 15, 4, 0, 0);
  expectStage(4, 20, 19, 0, 12);
  expectStage(4, 20, 19, 0, 12);  // a house is marked again though nothing changed
  expectStage(4, 15, 3, 1, 12);
  expectStage(5, 30, 19, 0, 12);
  expectStage(5, 15, 3, 1, 12);
  g.food = 0;
  expectStage(5, 15, 4, 0, 12);
  g.food = 1;
  expectStage(2, 15, 19, 0, 12);

  g.cellDirty.fill(0);
  g.cellCapacity(6, 6) = 4;
  evolveResidences(g);
  EXPECT_EQ(g.tileImage(5, 5), 4);
  EXPECT_EQ(city.count(g.cellDirty), 9);
  EXPECT_EQ(g.cellDirty(4, 6) + g.cellDirty(6, 4), 2);
}

}  // namespace
}  // namespace sim
