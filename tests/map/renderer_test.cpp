#include <gtest/gtest.h>

#include "map/made_up_city.h"

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

TEST(Renderer, BoxesLieWhereTheCellsAre) {
  for (const auto& [x, y] : {std::pair{0, 0}, {30, 0}, {0, 30}, {30, 30}, {17, 4}}) {
    const int left = 32 * (x - y) + 960;
    const int top = 16 * (x + y);
    MadeUpCity city;
    city.put(x, y, 0, 29, 0);
    city.game.cellDirty(x, y) = 1;
    DrawTiles32(city.stage, kFlatCells);
    EXPECT_EQ(drawnBox(city.canvas.surface()), (Rect{left + 1, top + 32, 62, 32}));
    city.put(x, y, 6, 12, 1);
    city.canvas.surface().clear();
    DrawTiles2(city.stage, kTallCells);
    EXPECT_EQ(drawnBox(city.canvas.surface()), (Rect{left, top, 64, 64}));
  }
  EXPECT_EQ(surfacePlace(kTallCells), (Rect{-592, -228, 1984, 1056}));
}

TEST(Renderer, FlatCellsNeedAMarkAndTallCellsNone) {
  MadeUpCity city;
  city.values.gMission = 2;
  city.pictures.picMask[48] = Surface(1800, 500);
  for (const int x : {10, 20}) {
    city.put(x, 10, 0, 28, 0);
    city.put(x, 20, 6, 12, 1);
    city.game.cellDirty(20, x) = 1;
    city.game.reserved[x / 10] = 7;
  }
  DrawTiles32(city.stage, kFlatCells);
  EXPECT_EQ(drawnBox(city.canvas.surface()), (Rect{1281, 512, 62, 32}));
  EXPECT_EQ(city.game.blitCount, 2);
  EXPECT_TRUE(city.canvas.shown().empty()) << "no refresh before the tall layer";
  DrawTiles2(city.stage, kTallCells);
  EXPECT_EQ(city.game.blitCount, 2 + 1 + 4) << "the countryside counts once, each tall cell twice";
  EXPECT_FALSE(city.canvas.shown().empty());
  EXPECT_EQ(city.canvas.surface().pixel(1280 + 32, 512 + 16), colorOf(28));
  EXPECT_EQ(city.canvas.surface().pixel(960 + 32, 640 + 16), colorOf(12));
  EXPECT_EQ(city.game.reserved[2], 7);
  DrawTiles3(city.stage, kTallCells);
  EXPECT_EQ(city.game.reserved[1] + city.game.reserved[2], 7);
}

TEST(Renderer, BackdropsAreOredOnceAndForAll) {
  for (const auto& [mission, box, counted] :
       {std::tuple{3, Rect{73, 29, 1800, 500}, 1}, std::tuple{6, Rect{89, 19, 1894, 510}, 0},
        std::tuple{10, Rect{508, 254, 965, 293}, 0}, std::tuple{7, Rect{}, 0}}) {
    MadeUpCity city;
    city.values.gMission = mission;
    openBackdrop(city.stage);
    EXPECT_EQ(drawnBox(city.canvas.surface()), box) << mission;
    EXPECT_EQ(city.game.blitCount, counted) << mission;
    EXPECT_EQ(city.canvas.shown().empty(), box.empty());
    const Surface once = city.canvas.surface().clone();
    paintBackdrop(city.stage);
    EXPECT_TRUE(same(once, city.canvas.surface()));
  }
}

}  // namespace
}  // namespace map
