#include "map/views.h"

#include <gtest/gtest.h>

#include "map/made_up_city.h"

namespace map {
namespace {

class Views : public ::testing::Test {
 protected:
  // Every kind of building, close together, so that tall pictures stand before all sorts of cells.
  Views() {
    eachPixel(31, 31, [&](int x, int y) { city.put(x, y, 0, (x + y) % 3 == 0 ? 29 : 28, 0); });
    for (int x = 9; x <= 22; ++x) city.put(x, 12, core::kRoadCode, 2, 0);
    for (int tool = 2; tool <= 5; ++tool) {
      city.putBlock(6 + 3 * tool, 10, core::blockOfTool(tool));
      city.putBlock(7 + 3 * tool, 15, core::blockOfTool(tool));
    }
    for (const int x : {10, 13, 16}) {
      city.putBlock(x, 13, core::kTent);
      for (const auto& d : core::kBlock) city.game.cellCapacity(x + d.x, 13 + d.y) = 2 * (x - 10);
    }
    for (const int x : {12, 15}) city.put(x, 13, core::kDoctorCode, 12, 1);
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
    eachPixel(32, 32, [&](int x, int y) { ASSERT_EQ(city.game.cellDirty(x, y), 0); });
    const Surface shown = city.canvas.surface().clone();
    EXPECT_TRUE(same(shown, city.paintedAnew())) << "view " << view;
  }
}

TEST_F(Views, ColoursTellWhoIsReachedAndFieldsTheMonth) {
  const auto image = [&](int x, int y) { return city.game.tileImage(x, y); };
  show(core::kSchool);
  show(core::kMarket);
  EXPECT_EQ(image(16, 13), 16);
  EXPECT_EQ(image(17, 13), 17) << "each cell of a residence for itself";
  EXPECT_EQ(city.game.cellTall(16, 13), 0);
  for (const auto& [x, y] : {std::pair{18, 13}, {12, 13}, {15, 10}}) EXPECT_EQ(image(x, y), 58);
  EXPECT_EQ(image(10, 12), 2) << "roads keep their pictures";
  for (std::size_t i = 0; i < 4; ++i) {
    const auto [dx, dy] = core::kBlock[i];
    EXPECT_EQ(image(12 + dx, 10 + dy), core::kMarketBlock.images[i]);
    EXPECT_EQ(city.game.cellTall(12 + dx, 10 + dy), core::kMarketBlock.tall[i]);
  }
  city.game.monthLength = 25;
  for (const auto& [tick, field] :
       {std::pair{0, 13}, {8, 13}, {9, 54}, {15, 54}, {16, 55}, {24, 55}}) {
    city.game.tickOfMonth = tick;
    for (const bool grows : {true, false}) {
      city.game.farmAnimationOn = grows;
      show(0);
      EXPECT_EQ(image(20, 15), grows ? field : 13) << tick;
    }
  }
  EXPECT_EQ(image(10, 13), 4);
  EXPECT_EQ(image(14, 14), 34);
  EXPECT_EQ(city.game.cellTall(16, 13), 1);
}

}  // namespace
}  // namespace map
