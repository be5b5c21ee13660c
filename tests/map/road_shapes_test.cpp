#include "map/road_shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "map/made_up_city.h"

namespace map {
namespace {

void lay(MadeUpCity& city, int x, int y) {
  city.put(x, y, core::kRoadCode, 1, 0);
  shapePlacedRoad(city.game, x, y);
}
void clear(MadeUpCity& city, int x, int y) {
  city.put(x, y, 0, 0, 0);
  straightenRoadsAround(city.game, x, y);
}

TEST(RoadShapes, AnyOrderOfPlacingGivesTheSameRoadsAndReshapesNothingElse) {
  // Pictures as they must come out among farms: a ring with all corners, a bar with an arm on every
  // side, stubs.
  constexpr int kPictures[7][7] = {
      {52, 2, 37, 2, 51, 0, 1}, {1, 0, 1, 0, 1, 0, 0},    {37, 2, 37, 2, 37, 2, 2},
      {1, 0, 1, 0, 1, 0, 0},    {50, 2, 37, 2, 49, 0, 1}, {0, 0, 0, 0, 0, 0, 1},
      {2, 2, 0, 2, 2, 2, 49},
  };
  std::vector<core::CellOffset> cells;
  MadeUpCity city;
  eachPixel(7, 7, [&](int x, int y) {
    if (kPictures[y][x] != 0) cells.push_back({x, y});
  });
  std::minstd_rand chance(3);
  for (int order = 0; order < 20; ++order) {
    eachPixel(7, 7, [&](int x, int y) { city.put(x, y, core::kFarmCode, 0, 0); });
    std::shuffle(cells.begin(), cells.end(), chance);
    for (const auto& c : cells) lay(city, c.x, c.y);
    eachPixel(7, 7, [&](int x, int y) {
      EXPECT_EQ(city.game.tileImage(x, y), kPictures[y][x]) << order << ": " << x << ", " << y;
    });
  }
}

TEST(RoadShapes, ADemolitionStraightensJunctionsThatLostTheirStemOnly) {
  MadeUpCity city;
  // A cross of arms of two cells about (10, 10); the middle is a junction.
  const auto cross = [&] {
    for (int n = 8; n <= 12; ++n) lay(city, n, 10), lay(city, 10, n);
  };
  for (const auto& d : core::kNeighbours) {
    cross();
    clear(city, 10 + d.x, 10 + d.y);
    EXPECT_EQ(city.game.tileImage(10, 10), 37) << "three arms are left";
    clear(city, 10 - d.x, 10 - d.y);
    EXPECT_EQ(city.game.tileImage(10, 10), d.x != 0 ? 1 : 2) << "the stem is gone";
    EXPECT_EQ(city.game.tileImage(10 + 2 * d.x, 10 + 2 * d.y), d.x != 0 ? 2 : 1);
  }
  cross();
  clear(city, 9, 10);
  clear(city, 10, 9);
  EXPECT_EQ(city.game.tileImage(10, 10), 37) << "two arms at a right angle stay a junction";
  clear(city, 11, 10);
  clear(city, 12, 10);
  EXPECT_EQ(city.game.tileImage(10, 10), 37) << "no stem was lost: nothing passes straight through";
  unmarkCells(city.game, 0, 30);
  shapeAllRoads(city.game);
  EXPECT_EQ(city.game.tileImage(10, 10), 1) << "a load sets it right";
  EXPECT_EQ(city.game.cellDirty(0, 30) + city.game.cellDirty(30, 0), 2);
}

}  // namespace
}  // namespace map
