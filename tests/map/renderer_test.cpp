#include <gtest/gtest.h>

#include "map/made_up_city.h"
#include "map/views.h"

namespace map {
namespace {

using platform::Rect;

// The smallest box around all pixels that are not black.
Rect drawnBox(const Surface& surface) {
  Rect box{};
  eachPixel(surface.width(), surface.height(), [&](int x, int y) {
    if (surface.pixel(x, y) != platform::kBlack) box = platform::boundingBox(box, {x, y, 1, 1});
  });
  return box;
}

TEST(Renderer, BoxesAreWhereTheCellsAre) {
  for (const auto& [x, y] : {std::pair{0, 0}, {30, 0}, {0, 30}, {30, 30}, {17, 4}}) {
    const int left = 32 * (x - y) + 960;
    const int top = 16 * (x + y);
    MadeUpCity city;
    city.put(x, y, 0, 29, 0);
    city.game.cellDirty(x, y) = 1;
    DrawTiles32(city.stage);
    EXPECT_EQ(drawnBox(city.canvas.surface()), (Rect{left + 1, top + 32, 62, 32}));
    city.put(x, y, 6, 12, 1);
    city.canvas.surface().clear();
    DrawTiles2(city.stage);
    EXPECT_EQ(drawnBox(city.canvas.surface()), (Rect{left, top, 64, 64}));
  }
}

TEST(Renderer, FlatCellsNeedAMarkAndTallCellsNone) {
  MadeUpCity city;
  city.values.gMission = 2;
  city.pictures.picMask[48] = Surface(1800, 500);
  for (const int x : {10, 20}) {
    city.put(x, 10, 0, 28, 0);
    city.put(x, 20, 6, 12, 1);
    city.game.cellDirty(20, x) = 1;
  }
  DrawTiles32(city.stage);
  EXPECT_EQ(drawnBox(city.canvas.surface()), (Rect{1281, 512, 62, 32}));
  EXPECT_EQ(city.game.blitCount, 2);
  EXPECT_TRUE(city.canvas.shown().empty()) << "no refresh before the tall layer";
  DrawTiles2(city.stage);
  EXPECT_EQ(city.game.blitCount, 2 + 1 + 4) << "the countryside counts once, each tall cell twice";
  EXPECT_FALSE(city.canvas.shown().empty());
  EXPECT_EQ(city.canvas.surface().pixel(960 + 32, 640 + 16), colorOf(12));
}

TEST(Renderer, BackdropsAreOredOnceAndForAll) {
  for (const auto& [mission, box, counted] :
       {std::tuple{3, Rect{73, 29, 1800, 500}, 1}, std::tuple{6, Rect{89, 19, 1894, 510}, 0},
        std::tuple{10, Rect{508, 254, 965, 293}, 0}, std::tuple{7, Rect{}, 0}}) {
    MadeUpCity city;
    city.values.gMission = mission;
    DrawTiles2(city.stage);
    EXPECT_EQ(drawnBox(city.canvas.surface()), box) << mission;
    EXPECT_EQ(city.game.blitCount, counted) << mission;
    EXPECT_EQ(city.canvas.shown().empty(), box.empty());
    const Surface once = city.canvas.surface().clone();
    paintBackdrop(city.stage);
    EXPECT_TRUE(same(once, city.canvas.surface()));
  }
}

class Views : public ::testing::Test {
 protected:
  // Every kind of building, close together, so that tall pictures cover all sorts of cells.
  Views() {
    eachPixel(31, 31, [&](int x, int y) { city.put(x, y, 0, (x + y) % 3 == 0 ? 29 : 28, 0); });
    for (int x = 9; x <= 22; ++x) city.put(x, 12, core::kRoadCode, 2, 0);
    for (int tool = 2; tool <= 5; ++tool) {
      city.putBlock(6 + 3 * tool, 10, *core::buildingOfTool(tool));
      city.putBlock(7 + 3 * tool, 15, *core::buildingOfTool(tool));
    }
    for (const int x : {10, 13, 16}) {
      city.putBlock(x, 13, *core::buildingOfTool(core::kResidenceTool));
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
  city.canvas.surface() = city.repainted();
  for (const int view : {1, 2, 2, 0, 3, 1, 4, 5, 0, 5, 0}) {
    show(view);
    eachPixel(32, 32, [&](int x, int y) { ASSERT_EQ(city.game.cellDirty(x, y), 0); });
    const Surface shown = city.canvas.surface().clone();
    EXPECT_TRUE(same(shown, city.repainted())) << "view " << view;
  }
}

TEST_F(Views, ColoursShowWhoIsReachedAndFieldsTheMonth) {
  const auto image = [&](int x, int y) { return city.game.tileImage(x, y); };
  show(core::kSchool);
  show(core::kMarket);
  EXPECT_EQ(image(16, 13), 16);
  EXPECT_EQ(image(17, 13), 17) << "each cell of a residence for itself";
  for (const auto& [x, y] : {std::pair{18, 13}, {12, 13}, {15, 10}}) EXPECT_EQ(image(x, y), 58);
  EXPECT_EQ(image(10, 12), 2) << "roads keep their pictures";
  for (std::size_t i = 0; i < 4; ++i) {
    const auto [dx, dy] = core::kBlock[i];
    EXPECT_EQ(image(12 + dx, 10 + dy), core::buildingOfService(core::kMarket).look.images[i]);
  }
  city.game.monthLength = 25;
  city.game.farmAnimationOn = 1;
  for (const auto& [tick, field] : {std::pair{8, 13}, {9, 54}, {15, 54}, {16, 55}}) {
    city.game.tickOfMonth = tick;
    show(0);
    EXPECT_EQ(image(20, 15), field) << tick;
  }
  EXPECT_EQ(image(14, 14), 34);
  EXPECT_EQ(city.game.cellTall(16, 13), 1);
}

}  // namespace
}  // namespace map
