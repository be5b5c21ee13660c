#include "map/walkers.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "map/made_up_city.h"

namespace map {
namespace {

class Walkers : public ::testing::Test {
 protected:
  Walkers() {
    city.game.population = 20;
    cutUpperCorners(city.pictures.picTile[12], platform::kWhite);
    cutUpperCorners(city.pictures.picMask[12], platform::kBlack);
    for (int y = 0; y <= 30; ++y) {
      for (int x = 0; x <= 30; ++x) city.put(x, y, 0, 28, 0);
    }
  }
  void layAlongX(int first, int last, int y) {
    for (int x = first; x <= last; ++x) city.put(x, y, core::kRoadCode, core::kRoadAlongX, 0);
  }
  void layAlongY(int first, int last, int x) {
    for (int y = first; y <= last; ++y) city.put(x, y, core::kRoadCode, core::kRoadAlongY, 0);
  }
  int active() const {
    int count = 0;
    for (int slot = 1; slot <= 10; ++slot) count += city.game.walkerActive[slot];
    return count;
  }
  void start(int slot, int x, int y, int direction) {
    city.game.walkerX[slot] = x;
    city.game.walkerY[slot] = y;
    city.game.walkerDir[slot] = direction;
    city.game.walkerActive[slot] = 1;
  }
  // Where the last patch of a walker towards lower x reaches over the cell ahead.
  static bool isOverhang(int px, int py, int lastX, int lastY) {
    const int x = px - (32 * (lastX - lastY) + 960);
    const int y = py - (16 * (lastX + lastY) + 32);
    return x >= 22 && x < 34 && y >= 1 && y < 18 && !inDiamond(x, y);
  }
  // Walkers may be painted over these corners of a tall picture and nothing is painted again on top.
  static void cutUpperCorners(Surface& surface, Color background) {
    for (int y = 0; y < 6; ++y) surface.fill({0, y, 12 - 2 * y, 1}, background);
    surface.fill({52, 0, 12, 7}, background);
  }
  MadeUpCity city;
  platform::Random random{nullptr, 5};
};

TEST_F(Walkers, StartOnlyWhereAndWhenTheyMay) {
  layAlongX(5, 6, 20);
  layAlongY(8, 9, 3);
  EXPECT_FALSE(spawnWalkers(city.game, random)) << "two cells are no lane";
  layAlongY(10, 11, 3);  // two lane cells: (3, 9) and (3, 10)
  city.game.population = 19;
  random.feed(0);
  EXPECT_FALSE(spawnWalkers(city.game, random));
  city.game.population = 20;
  city.game.blitCount = 101;
  EXPECT_FALSE(spawnWalkers(city.game, random));
  city.game.blitCount = 100;
  EXPECT_EQ(random.uniform(), 0) << "nothing was drawn";

  for (const double u : {0.5, 0.49, 0.5, 0.75}) random.feed(u);
  EXPECT_TRUE(spawnWalkers(city.game, random));
  EXPECT_EQ(random.uniform(), 0.75) << "a draw for each cell, one for the direction, no more";
  EXPECT_EQ(city.game.walkerY[1], 10);
  EXPECT_EQ(city.game.walkerDir[1], 1);
  for (const double u : {0.5, 0.5, 0.75}) random.feed(u);
  EXPECT_FALSE(spawnWalkers(city.game, random)) << "a scan can end with no cell taken";
  EXPECT_EQ(random.uniform(), 0.75);

  layAlongX(7, 7, 20);
  for (int slot = 2; slot <= 8; ++slot) start(slot, 3, 9, 0);
  core::clearWalker(city.game, 4);
  start(9, 3, 9, 0);
  for (int i = 0; i < 4; ++i) random.feed(0);
  EXPECT_TRUE(spawnWalkers(city.game, random)) << "with 8 under way both axes may start one";
  EXPECT_EQ(active(), 10);
  EXPECT_EQ(city.game.walkerDir[4], 0);
  EXPECT_EQ(city.game.walkerX[10], 6);
  EXPECT_EQ(city.game.walkerDir[10], 2);
  core::clearWalker(city.game, 1);
  EXPECT_FALSE(spawnWalkers(city.game, random)) << "9 are enough";
}

TEST_F(Walkers, EndAsTheyEnterTheLastStraightCell) {
  layAlongX(5, 9, 20);
  layAlongY(5, 9, 3);
  layAlongX(2, 4, 4);  // the lane along y ends at a road of the other axis
  start(1, 6, 20, 2);
  start(2, 7, 20, 3);
  start(3, 3, 7, 0);
  start(4, 3, 6, 1);
  for (int tick = 1; tick <= 49; ++tick) {
    stepWalkers(city.stage);
    EXPECT_EQ(city.game.walkerActive[1] + 2 * city.game.walkerActive[4], tick < 49 ? 3 : 0) << tick;
    EXPECT_EQ(city.game.walkerActive[2] + 2 * city.game.walkerActive[3], tick < 33 ? 3 : 0) << tick;
    if (tick == 16) {
      EXPECT_EQ(city.game.walkerCellDX[1], 1);
      EXPECT_EQ(city.game.walkerCellDY[3], -1);
      EXPECT_EQ(city.game.walkerFrame[1], 0);
    }
  }
  EXPECT_EQ(city.game.walkerPxX[1] + city.game.walkerCellDX[1] + city.game.walkerX[1], 0);
  start(1, 6, 20, 2);
  city.game.tileImage(7, 20) = core::kRoadJunction;
  stepWalkers(city.stage);
  EXPECT_EQ(active(), 0) << "the road ahead was reshaped";
  layAlongX(0, 4, 25);
  start(1, 1, 25, 3);
  for (int tick = 0; tick < 17; ++tick) stepWalkers(city.stage);
  EXPECT_EQ(active(), 0) << "the road ends with the map";
}

TEST_F(Walkers, LeaveNoTraceAmongTallCells) {
  for (const int density : {0, 3}) {
    eachPixel(29, 29, [&](int x, int y) {
      const bool tall = random.uniform() * 10 < density;
      city.put(x + 1, y + 1, tall ? 6 : 0, tall ? 12 : 28, tall);
    });
    layAlongX(3, 9, 5);
    layAlongX(6, 20, 9);
    layAlongY(3, 20, 24);
    layAlongY(12, 18, 10);
    const Surface before = city.paintedAnew();
    city.canvas.surface() = before.clone();
    int started = 0;
    for (int tick = 0; tick < 400 || active() > 0; ++tick) {
      if (tick == 200) removeWalkers(city.stage);
      city.game.blitCount = 0;
      if (tick < 400 && tick % 20 == 0) started += spawnWalkers(city.game, random);
      stepWalkers(city.stage);
    }
    EXPECT_GT(started, 8);
    int overhang = 0;
    int traces = 0;
    eachPixel(before.width(), before.height(), [&](int x, int y) {
      if (before.pixel(x, y) == city.canvas.surface().pixel(x, y)) return;
      ++(isOverhang(x, y, 3, 5) || isOverhang(x, y, 6, 9) ? overhang : traces);
    });
    EXPECT_EQ(traces, 0) << density;
    EXPECT_LE(overhang, 2 * 16);
  }
}

// Cells around a walker's own, from x - 1, y - 1: a tall picture there is painted again on top of a
// walker under way ('w'), of the patch where it ended ('p'), or of both ('b').
TEST_F(Walkers, AreOvertakenByTheTallCellsBeforeThem) {
  constexpr std::string_view kMaps[4][4] = {{"..p.", "..b.", ".bb.", "...."},
                                            {"..p.", "..p.", ".bb.", "..w."},
                                            {"....", "..b.", ".bbw", "...."},
                                            {"....", "..p.", ".bb.", "...."}};
  constexpr core::CellOffset kSteps[4] = {{0, -1}, {0, 1}, {1, 0}, {-1, 0}};
  // Cells painted for one step of a walker in the third cell of its way, with or without its end.
  const auto painted = [&](int direction, bool ends) {
    const core::CellOffset d = kSteps[direction];
    core::clearWalkers(city.game);
    start(1, 10 - 2 * d.x, 14 - 2 * d.y, direction);
    city.game.walkerCellDX[1] = 2 * d.x;
    city.game.walkerCellDY[1] = 2 * d.y;
    city.game.tileImage(10 + d.x, 14 + d.y) = ends ? 28 : direction < 2 ? 1 : 2;
    city.game.blitCount = 0;
    stepWalkers(city.stage);
    return city.game.blitCount / 2;
  };
  for (int direction = 0; direction < 4; ++direction) {
    for (int y = 0; y < 4; ++y) {
      std::string row;
      for (int x = 0; x < 4; ++x) {
        city.game.cellTall.fill(0);
        city.game.cellTall(x + 9, y + 13) = 1;
        const int walking = painted(direction, false);
        const int patched = painted(direction, true) - walking;
        row += ".wpb"[walking + 2 * patched];
      }
      EXPECT_EQ(row, kMaps[direction][y]) << direction << ": " << y;
    }
    // What is painted again reaches to the last cell of the board, from where the walker may have been.
    city.game.cellTall.fillSquare(0, 30, 1);
    const int walking = direction < 2 ? 21 * 17 : 22 * 17;
    EXPECT_EQ(painted(direction, false), walking);
    EXPECT_EQ(painted(direction, true), walking + (direction < 2 ? 21 * 18 : 22 * 17));
  }
}

TEST_F(Walkers, ArePaintedOutAtOnce) {
  layAlongX(5, 15, 10);
  const Surface bare = city.paintedAnew();
  city.canvas.surface() = bare.clone();
  start(1, 7, 10, 2);
  stepWalkers(city.stage);
  EXPECT_EQ(city.game.blitCount, 0) << "blocks are no drawing load";
  EXPECT_FALSE(same(bare, city.canvas.surface()));
  city.canvas.shown().clear();
  removeWalkers(city.stage);
  EXPECT_TRUE(same(bare, city.canvas.surface()));
  EXPECT_EQ(active(), 0);
  EXPECT_TRUE(city.canvas.shown().empty()) << "the caller refreshes";
}

}  // namespace
}  // namespace map
