#include "sim/disasters.h"

#include <gtest/gtest.h>

#include "sim/city.h"

namespace sim {
namespace {

TEST(Earthquake, DrawsForEachStandingCellAndClearsTheLayersOfWhatStands) {
  City city;
  core::GameState& g = city.game;
  city.block(core::kResidenceCode, 4, 4);
  city.block(core::kResidenceCode, 6, 4);  // wall to wall with the first
  city.block(core::kMarketCode, 8, 7);
  city.farm(20, 20);
  g.roadService[core::kMarket](4, 6) = g.roadService[core::kDoctor](4, 6) = 1;
  // The first cell of one residence falls, the last of the other, the market stands.
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

TEST(RoadLoss, RemovesWhatNoRoadTouchesByASide) {
  City city;
  core::GameState& g = city.game;
  city.road(10, 10, 12, 10);
  city.block(core::kResidenceCode, 11, 11);  // touches by a side
  city.single(core::kDoctorCode, 9, 10);     // likewise
  city.farm(20, 20);
  EXPECT_FALSE(anyBuildingWithoutRoad(g));
  city.block(core::kChurchCode, 8, 11);   // touches the road by a corner
  city.single(core::kDoctorCode, 13, 9);  // touches the road by a corner
  EXPECT_TRUE(anyBuildingWithoutRoad(g));
  g.cellTall(8, 11) = 1;
  removeBuildingsWithoutRoad(g);
  EXPECT_FALSE(anyBuildingWithoutRoad(g));
  EXPECT_EQ(g.tileCode(8, 11) + g.tileCode(9, 12) + g.tileCode(13, 9) + g.cellTall(8, 11), 0);
  EXPECT_EQ(g.tileCode(11, 11) + g.tileCode(9, 10) + g.tileCode(22, 22), 11 + 6 + 89);
  EXPECT_EQ(city.count(g.cellDirty), 49 + 49 - 2 * 5);
}

}  // namespace
}  // namespace sim
