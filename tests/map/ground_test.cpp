#include "map/ground.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string_view>
#include <vector>

#include "map/made_up_city.h"
#include "map/road_shapes.h"

namespace map {
namespace {

// What is rolled and what it becomes: '#' the second variant, 'O' the third.
constexpr std::string_view kMeadow[][2] = {
    // A full patch; a wider one with three dots in a row, of which the first wipes the second.
    {"###.#####", "###.#####"},
    {"###.#####", "#O#.#O#O#"},
    {"###.#####", "###.#####"},
    {".........", "........."},
    // The third of the row has six neighbours, but only five once the second has turned.
    {"....####.", "....####."},
    {"....####.", "....#O##."},
    {"....#####", "....#####"},
    {".........", "........."},
    // Six neighbours make a dot that fills its gaps, five do not.
    {"#.#.#.#..", "###.#.#.."},
    {"###.###..", "#O#.###.."},
    {"#.#.#....", "###.#...."},
};

TEST(Ground, ClumpsAndClearsInPlace) {
  MadeUpCity city;
  city.values.gMapSize = 28;
  platform::Random random(nullptr);
  constexpr int kRows = std::size(kMeadow);
  eachPixel(31, 31, [&](int x, int y) {
    const bool inside = x >= 10 && x < 19 && y >= 10 && y < 10 + kRows;
    random.feed(inside && kMeadow[y - 10][0][x - 10u] == '#' ? 0.5 : 0.4999);
  });
  readmap(city.game, city.values, random);
  for (int y = 0; y < kRows; ++y) {
    std::string row;
    for (int x = 0; x < 9; ++x) {
      const int image = city.game.tileImage(x + 10, y + 10);
      row += image == 29 ? 'O' : image == 28 ? '#' : '.';
    }
    EXPECT_EQ(row, kMeadow[y][1]) << "row " << y;
  }
}

TEST(Ground, RingsAreAroundThePlaySquareAndTheVoidWins) {
  for (const int size : {4, 12, 18, 28}) {
    MadeUpCity city;
    city.values.gMapSize = size;
    platform::Random random(nullptr);
    for (int i = 0; i < 31 * 31; ++i) random.feed(0);
    random.feed(0.125);
    readmap(city.game, city.values, random);
    EXPECT_EQ(random.uniform(), 0.125) << "one draw for each cell";
    eachPixel(31, 31, [&](int x, int y) {
      const int out = std::max(std::abs(x - 15), std::abs(y - 15)) - size / 2;
      const int image = out > 0 ? 20 : out == 0 ? 29 : out == -1 ? 28 : 0;
      ASSERT_EQ(city.game.tileImage(x, y), image) << size << ": " << x << ", " << y;
    });
  }
}

TEST(Ground, ACastleHasWallsOnTheTwoSidesNearestTheViewer) {
  MadeUpCity city;
  city.values.gMission = 9;
  city.values.gMapSize = 12;
  platform::Random random(nullptr);
  readmap(city.game, city.values, random);
  eachPixel(31, 31, [&](int x, int y) {
    const bool alongX = y == 22 && x >= 9 && x <= 22, alongY = x == 22 && y >= 9 && y <= 22;
    ASSERT_EQ(city.game.cellTall(x, y), alongX || alongY) << x << ", " << y;
    if (!alongX && !alongY) return;
    const bool tower = x == y || x == 15 || y == 15;
    EXPECT_EQ(city.game.tileImage(x, y), tower ? 61 : alongX ? 59 : 60) << x << ", " << y;
  });
}

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
  EXPECT_EQ(city.game.cellDirty(0, 30), 1);
  EXPECT_EQ(city.game.cellDirty(30, 0), 1);
}

}  // namespace
}  // namespace map
