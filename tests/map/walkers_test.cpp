// Walkers with the pictures of the game: they work only where figure, patch and road agree.
#include "map/walkers.h"

#include <gtest/gtest.h>

#include "map/made_up_city.h"
#include "platform/png.h"
#include "support/temp_folder.h"

namespace map {
namespace {

class Walkers : public ::testing::Test {
 protected:
  Walkers() {
    std::string error;
    EXPECT_TRUE(loadPictures(city.pictures, VELLMORAN_SOURCE_DIR "/data/pictures", error)) << error;
    city.game.population = 20;
    eachPixel(31, 31, [&](int x, int y) { city.put(x, y, 0, 28, 0); });
  }
  void lay(int x, int y, int lastX, int lastY) {
    const int image = x == lastX ? core::kRoadAlongY : core::kRoadAlongX;
    for (; x <= lastX && y <= lastY; ++(image == core::kRoadAlongX ? x : y)) {
      city.put(x, y, core::kRoadCode, image, 0);
    }
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
  bool spawn(std::initializer_list<double> draws) {
    for (const double u : draws) random.feed(u);
    return spawnWalkers(city.game, city.game, city.game, random);
  }
  // Where the last patch of a walker towards lower x reaches over the cell ahead.
  static bool isOverhang(int px, int py, int lastX, int lastY) {
    const int x = px - (32 * (lastX - lastY) + 960);
    const int y = py - (16 * (lastX + lastY) + 32);
    return x >= 22 && x < 34 && y >= 1 && y < 18 && !inDiamond(x, y);
  }
  MadeUpCity city;
  platform::Random random{nullptr, 5};
};

TEST_F(Walkers, StartOnlyWhereAndWhenTheyMay) {
  lay(5, 20, 6, 20);
  lay(3, 8, 3, 9);
  EXPECT_FALSE(spawn({})) << "two cells are no lane";
  lay(3, 10, 3, 11);  // two lane cells: (3, 9) and (3, 10)
  city.game.population = 19;
  EXPECT_FALSE(spawn({0}));
  city.game.population = 20;
  city.game.blitCount = 101;
  EXPECT_FALSE(spawn({}));
  city.game.blitCount = 100;
  EXPECT_EQ(random.uniform(), 0) << "nothing was drawn";

  EXPECT_TRUE(spawn({0.5, 0.49, 0.5, 0.75}));
  EXPECT_EQ(random.uniform(), 0.75) << "a draw for each cell, one for the direction, no more";
  EXPECT_EQ(city.game.walkerY[1], 10);
  EXPECT_EQ(city.game.walkerDir[1], 1);
  EXPECT_FALSE(spawn({0.5, 0.5, 0.75})) << "a scan can end with no cell taken";
  EXPECT_EQ(random.uniform(), 0.75);

  lay(5, 20, 7, 20);
  for (int slot = 2; slot <= 9; ++slot) start(slot, 3, 9, 0);
  core::clearWalker(city.game, 4);
  EXPECT_TRUE(spawn({0, 0, 0, 0})) << "with 8 under way both axes may start one";
  EXPECT_EQ(active(), 10);
  EXPECT_EQ(city.game.walkerDir[4], 0);
  EXPECT_EQ(city.game.walkerX[10], 6);
  EXPECT_EQ(city.game.walkerDir[10], 2);
  core::clearWalker(city.game, 1);
  EXPECT_FALSE(spawn({})) << "9 are enough";
}

TEST_F(Walkers, EndAsTheyEnterTheLastStraightCell) {
  lay(5, 20, 9, 20);
  lay(3, 5, 3, 9);
  lay(2, 4, 4, 4);  // the lane along y ends at a road of the other axis
  start(1, 6, 20, 2);
  start(2, 7, 20, 3);
  start(3, 3, 7, 0);
  start(4, 3, 6, 1);
  for (int tick = 1; tick <= 49; ++tick) {
    stepWalkers(city.stage);
    EXPECT_EQ(active(), tick < 33 ? 4 : tick < 49 ? 2 : 0) << tick;
  }
}

TEST_F(Walkers, LeaveNoTraceAmongTallCells) {
  for (const int density : {0, 3}) {
    eachPixel(29, 29, [&](int x, int y) {
      const bool tall = random.uniform() * 10 < density;
      city.put(x + 1, y + 1, tall ? 6 : 0, tall ? 12 : 28, tall);
    });
    lay(3, 5, 9, 5);
    lay(6, 9, 20, 9);
    lay(24, 3, 24, 20);
    lay(10, 12, 10, 18);
    const Surface before = city.repainted();
    city.canvas.surface() = before.clone();
    int started = 0;
    for (int tick = 0; tick < 400 || active() > 0; ++tick) {
      if (tick == 200) {
        EXPECT_FALSE(same(before, city.canvas.surface()));
        removeWalkers(city.stage);
        EXPECT_EQ(active(), 0);
      }
      city.game.blitCount = 0;
      if (tick < 400 && tick % 20 == 0)
        started += spawnWalkers(city.game, city.game, city.game, random);
      stepWalkers(city.stage);
    }
    EXPECT_GT(started, 8);
    int traces = 0;
    eachPixel(before.width(), before.height(), [&](int x, int y) {
      traces += before.pixel(x, y) != city.canvas.surface().pixel(x, y) &&
                !isOverhang(x, y, 3, 5) && !isOverhang(x, y, 6, 9);
    });
    EXPECT_EQ(traces, 0) << density;
  }
}

TEST(Pictures, ThatAreMissingOrOfAnotherSizeAreNamed) {
  support::TempFolder folder;
  PictureSet set;
  std::string error;
  EXPECT_FALSE(loadPictures(set, folder.path(), error));
  EXPECT_NE(error.find("00.png"), std::string::npos) << error;
  std::filesystem::create_directory(folder / "pair");
  ASSERT_TRUE(platform::writePng(folder / "pair/00.png", Surface(32, 64), error));
  EXPECT_FALSE(loadPictures(set, folder.path(), error));
  EXPECT_NE(error.find("32 x 64"), std::string::npos) << error;
}

// Walkers are painted over these corners where no rule repaints what is in front of them; a
// corner over the building's own anchor needs no care, as the anchor is checked.
TEST(Pictures, OfTallCellsLeaveTheirUpperCornersFree) {
  PictureSet set;
  std::string error;
  ASSERT_TRUE(loadPictures(set, VELLMORAN_SOURCE_DIR "/data/pictures", error)) << error;
  for (const std::size_t n : {3, 8, 9, 10, 12, 14, 18, 25, 26, 31, 32, 44, 45, 46}) {
    const bool right = n == 9 || n == 31 || n == 46 || n == 32;
    const bool left = n == 10 || n == 26 || n == 45 || n == 18;
    const auto isFree = [&](int x, int y) {
      return set.picTile[n].pixel(x, y) == platform::kWhite &&
             set.picMask[n].pixel(x, y) == platform::kBlack;
    };
    eachPixel(12, 7, [&](int x, int y) {
      EXPECT_TRUE(right || x + 2 * y >= 12 || isFree(x, y)) << n;
      EXPECT_TRUE(left || isFree(63 - x, y)) << n;
    });
  }
}

}  // namespace
}  // namespace map
