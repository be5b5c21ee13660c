#include "map/road_shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "map/made_up_city.h"

namespace map {
namespace {

using Cells = std::vector<core::CellOffset>;

void lay(MadeUpCity& city, int x, int y) {
  city.put(x, y, core::kRoadCode, 1, 0);
  shapePlacedRoad(city.game, x, y);
}

TEST(RoadShapes, AnyOrderOfPlacingGivesTheSameRoads) {
  // Pictures as they must come out: a ring with all corners, a bar with an arm on every side, stubs.
  constexpr int kPictures[7][7] = {
      {52, 2, 37, 2, 51, 0, 1}, {1, 0, 1, 0, 1, 0, 0},    {37, 2, 37, 2, 37, 2, 2},
      {1, 0, 1, 0, 1, 0, 0},    {50, 2, 37, 2, 49, 0, 1}, {0, 0, 0, 0, 0, 0, 1},
      {2, 2, 0, 2, 2, 2, 49},
  };
  Cells cells;
  for (int y = 0; y < 7; ++y) {
    for (int x = 0; x < 7; ++x) {
      if (kPictures[y][x] != 0) cells.push_back({x, y});
    }
  }
  std::vector<Cells> orders{cells, {cells.rbegin(), cells.rend()}, cells};
  std::sort(orders[2].begin(), orders[2].end(), [](auto a, auto b) {
    return std::pair{(a.x * 5 + a.y * 3) % 11, a.x} < std::pair{(b.x * 5 + b.y * 3) % 11, b.x};
  });
  for (const Cells& order : orders) {
    MadeUpCity city;
    for (const auto& c : order) lay(city, c.x, c.y);
    for (const auto& c : cells) {
      EXPECT_EQ(city.game.tileImage(c.x, c.y), kPictures[c.y][c.x]) << c.x << ", " << c.y;
    }
  }
}

TEST(RoadShapes, OnlyNeighboursThatChangeAreMarked) {
  MadeUpCity city;
  for (int x = 10; x <= 12; ++x) lay(city, x, 10);
  city.put(11, 9, core::kFarmCode, 13, 0);
  lay(city, 13, 11);  // touches at a corner only
  unmarkCells(city.game, 0, 30);
  lay(city, 11, 11);
  EXPECT_EQ(city.game.tileImage(11, 10), 37);
  EXPECT_EQ(city.game.tileImage(11, 9), 13);
  EXPECT_EQ(city.game.cellDirty(11, 10), 1);
  lay(city, 14, 11);
  EXPECT_EQ(city.game.cellDirty(13, 11), 1) << "a lone road turns from along y to along x";
  lay(city, 15, 11);
  EXPECT_EQ(city.game.cellDirty(14, 11), 0) << "a straight road stays as it is";
}

TEST(RoadShapes, ADemolitionStraightensJunctionsThatLostTheirStemOnly) {
  // A cross of arms of two cells about (10, 10); the middle is a junction.
  const auto cross = [](MadeUpCity& city) {
    for (int n = 8; n <= 12; ++n) lay(city, n, 10);
    for (int n = 8; n <= 12; ++n) {
      if (n != 10) lay(city, 10, n);
    }
  };
  const auto clear = [](MadeUpCity& city, int x, int y) {
    city.put(x, y, 0, 0, 0);
    straightenRoadsAround(city.game, x, y);
  };
  for (const auto& d : core::kNeighbours) {
    MadeUpCity city;
    cross(city);
    clear(city, 10 + d.x, 10 + d.y);
    EXPECT_EQ(city.game.tileImage(10, 10), 37) << "three arms are left";
    clear(city, 10 - d.x, 10 - d.y);
    EXPECT_EQ(city.game.tileImage(10, 10), d.x != 0 ? 1 : 2) << "the stem is gone";
    EXPECT_EQ(city.game.tileImage(10 + 2 * d.x, 10 + 2 * d.y), d.x != 0 ? 2 : 1);
  }
  MadeUpCity city;
  cross(city);
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
