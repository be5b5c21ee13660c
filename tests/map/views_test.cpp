#include "map/views.h"

#include <gtest/gtest.h>

#include "map/made_up_city.h"

namespace map {
namespace {

class Views : public ::testing::Test {
 protected:
  // Every kind of building, close together, so that tall pictures stand before all sorts of cells.
  Views() {
    for (int y = 0; y <= 30; ++y) {
      for (int x = 0; x <= 30; ++x) city.put(x, y, 0, (x + y) % 3 == 0 ? 29 : 28, 0);
    }
    for (int x = 9; x <= 22; ++x) city.put(x, 12, core::kRoadCode, 2, 0);
    for (int tool = 2; tool <= 5; ++tool) {
      city.putBlock(6 + 3 * tool, 10, core::blockOfTool(tool));
      city.putBlock(7 + 3 * tool, 15, core::blockOfTool(tool));
    }
    for (const int x : {10, 13, 16}) city.putBlock(x, 13, core::kTent);
    city.game.cellCapacity(13, 13) = 5;
    for (const auto& d : core::kBlock) {
      city.game.cellCapacity(13 + d.x, 13 + d.y) = 6;
      city.game.cellCapacity(16 + d.x, 13 + d.y) = 10;
    }
    city.put(12, 13, core::kDoctorCode, 12, 1);
    city.put(15, 13, core::kDoctorCode, 12, 1);
    for (int i = 0; i < 9; ++i) city.put(18 + i / 3, 13 + i % 3, core::kFarmCode + i, 13, 0);
    city.game.cellService[core::kMarket](16, 13) = 1;
  }
  void show(int view) {
    city.game.overlayView = view;
    applyOverlayView(city.stage);
  }
  MadeUpCity city;
};

TEST_F(Views, NoViewLeavesRemainsOfAnother) {
  show(0);
  city.canvas.surface() = city.paintedAnew();
  for (const int view : {1, 2, 2, 0, 3, 1, 4, 5, 0, 5, 0}) {
    show(view);
    const Surface shown = city.canvas.surface().clone();
    EXPECT_TRUE(same(shown, city.paintedAnew())) << "view " << view;
  }
}

TEST_F(Views, ColoursTellWhoIsReached) {
  show(0);
  EXPECT_EQ(city.game.tileImage(10, 13), 4);
  EXPECT_EQ(city.game.tileImage(14, 14), 34);
  EXPECT_EQ(city.game.cellTall(16, 13), 1);
  show(core::kSchool);
  show(core::kMarket);
  EXPECT_EQ(city.game.tileImage(16, 13), 16);
  EXPECT_EQ(city.game.tileImage(17, 13), 17) << "each cell of a residence for itself";
  EXPECT_EQ(city.game.cellTall(16, 13), 0);
  EXPECT_EQ(city.game.tileImage(18, 13), 58);
  EXPECT_EQ(city.game.tileImage(12, 13), 58);
  EXPECT_EQ(city.game.tileImage(15, 10), 58);
  EXPECT_EQ(city.game.tileImage(10, 12), 2) << "roads keep their pictures";
  for (std::size_t i = 0; i < 4; ++i) {
    const auto [dx, dy] = core::kBlock[i];
    EXPECT_EQ(city.game.tileImage(12 + dx, 10 + dy), core::kMarketBlock.images[i]);
    EXPECT_EQ(city.game.cellTall(12 + dx, 10 + dy), core::kMarketBlock.tall[i]);
  }
  for (int y = 0; y <= 31; ++y) {
    for (int x = 0; x <= 31; ++x) ASSERT_EQ(city.game.cellDirty(x, y), 0);
  }
}

TEST_F(Views, FieldsFollowTheMonth) {
  city.game.monthLength = 25;
  for (const auto& [tick, image] :
       {std::pair{0, 13}, {8, 13}, {9, 54}, {15, 54}, {16, 55}, {24, 55}}) {
    city.game.tickOfMonth = tick;
    city.game.farmAnimationOn = 1;
    show(0);
    EXPECT_EQ(city.game.tileImage(20, 15), image) << tick;
    city.game.farmAnimationOn = 0;
    show(0);
    EXPECT_EQ(city.game.tileImage(18, 13), 13) << tick;
  }
}

}  // namespace
}  // namespace map
