// What the pictures of the game must satisfy to work with the drawing.
#include "map/picture_set.h"

#include <gtest/gtest.h>

#include <vector>

#include "map/made_up_city.h"
#include "map/walker_designs.h"

namespace map {
namespace {

class RealPictures : public ::testing::Test {
 protected:
  struct Piece {
    int number, left, top;
  };

  RealPictures() {
    std::string error;
    EXPECT_TRUE(loadPictures(city.pictures, VELLMORAN_SOURCE_DIR "/data/pictures", error)) << error;
  }
  const Surface& tile(int n) const { return city.pictures.picTile[static_cast<std::size_t>(n)]; }
  bool isOpaque(int n, int x, int y) const {
    const Surface& mask = city.pictures.picMask[static_cast<std::size_t>(n)];
    return mask.bounds().contains({x, y}) &&
           !(tile(n).pixel(x, y) == platform::kWhite && mask.pixel(x, y) == platform::kBlack);
  }
  // Pixels of the diamond at `left`, `top` that no piece covers.
  int uncovered(const std::vector<Piece>& pieces, int left, int top) const {
    int count = 0;
    eachPixel(64, 32, [&](int x, int y) {
      bool covered = !inDiamond(x, y);
      for (const Piece& piece : pieces) {
        covered |= isOpaque(piece.number, left + x - piece.left, top + y - piece.top);
      }
      count += !covered;
    });
    return count;
  }
  MadeUpCity city;
};

TEST_F(RealPictures, OfFlatCellsAreExactDiamonds) {
  for (const PictureFile& file : pictureFiles()) {
    if (file.size.width < 63 || file.size.height > 33) continue;
    // Of the two side pieces of the apartment, which are cut, nothing may stick out.
    const bool cut = file.size.width == 63;
    int wrong = 0;
    eachPixel(64, 32, [&](int x, int y) {
      wrong += isOpaque(file.number, x, y) ? !inDiamond(x, y) : inDiamond(x, y) && !cut;
    });
    EXPECT_EQ(wrong, 0) << "picture " << file.number;
  }
}

TEST_F(RealPictures, OfBuildingsCoverTheirFootprint) {
  for (const core::BlockDesign* block :
       {&core::kTent, &core::kHouse, &core::kApartment, &core::kMarketBlock, &core::kSchoolBlock,
        &core::kTavernBlock, &core::kChurchBlock}) {
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < 4; ++i) {
      const auto [x, y] = core::kBlock[i];
      pieces.push_back(
          {block->images[i], 32 * (x - y), 16 * (x + y) + (block->tall[i] == 1 ? 0 : 32)});
    }
    for (const auto& [x, y] : core::kBlock) {
      EXPECT_EQ(uncovered(pieces, 32 * (x - y), 16 * (x + y) + 32), 0)
          << "building of picture " << block->images[0] << ", cell " << x << ", " << y;
    }
  }
  for (const int alone : {12, 59, 60, 61}) EXPECT_EQ(uncovered({{alone, 0, 0}}, 0, 32), 0) << alone;
}

TEST_F(RealPictures, OfWalkersContinueTheRoad) {
  for (const WalkerDesign& design : kWalkerDesigns) {
    int compared = 0;
    int wrong = 0;
    for (int step = -32; step <= 32; ++step) {
      eachPixel(12, 17, [&](int x, int y) {
        const int px = design.base.x + step * design.pixelStep.x + x;
        const int py = design.base.y - 32 + step * design.pixelStep.y + y;
        if (!inDiamond(px, py)) return;
        ++compared;
        wrong += tile(design.patch).pixel(x, y) != tile(design.road).pixel(px, py);
      });
    }
    EXPECT_GT(compared, 12 * 17 * 8);
    EXPECT_EQ(wrong, 0) << "patch " << design.patch;
    for (const int frame : design.frames) {
      int figure = 0;
      int atRim = 0;
      eachPixel(12, 17, [&](int x, int y) {
        if (tile(frame).pixel(x, y) == tile(design.patch).pixel(x, y)) return;
        ++(x >= 2 && x < 10 && y >= 1 && y < 16 ? figure : atRim);
      });
      EXPECT_GT(figure, 0) << frame;
      EXPECT_EQ(atRim, 0) << frame;
    }
  }
}

TEST_F(RealPictures, OfTheViewsAndTheVoidHaveTheirColours) {
  for (const auto& [n, inner] : {std::pair{16, Color{159, 207, 240}},
                                 {17, Color{255, 128, 159}},
                                 {58, Color{192, 192, 192}},
                                 {20, platform::kBlack}}) {
    city.canvas.surface().clear(platform::kWhite);
    city.canvas.pair(0, 0, 64, 32, tile(n), city.pictures.picMask[static_cast<std::size_t>(n)]);
    int outline = 0;
    int wrong = 0;
    eachPixel(64, 32, [&](int x, int y) {
      const Color color = city.canvas.surface().pixel(x, y);
      const bool grey = inDiamond(x, y) && color == Color{128, 128, 128};
      outline += grey;
      wrong += !grey && color != (inDiamond(x, y) ? inner : platform::kWhite);
    });
    EXPECT_EQ(wrong, 0) << n;
    EXPECT_TRUE(n == 20 ? outline == 0 : outline > 60 && outline < 400) << n;
  }
}

TEST_F(RealPictures, OfBackdropsLeaveThePlaySquareAlone) {
  for (const auto& [mission, size] : {std::pair{1, 18}, {4, 22}, {9, 12}}) {
    city.values.gMission = mission;
    city.canvas.surface().clear();
    paintBackdrop(city.stage);
    const int first = 15 - size / 2;
    int lit = 0;
    eachPixel(size + 1, size + 1, [&](int x, int y) {
      const int left = 32 * (x - y) + 960;
      const int top = 16 * (x + y + 2 * first) + 32;
      eachPixel(64, 32, [&](int px, int py) {
        lit += inDiamond(px, py) &&
               city.canvas.surface().pixel(left + px, top + py) != platform::kBlack;
      });
    });
    EXPECT_EQ(lit, 0) << "mission " << mission;
  }
}

TEST_F(RealPictures, OfWaterRunIntoOneAnother) {
  // From right to left; each lies 122 left and 61 below the one before.
  const Surface& water = city.pictures.picMask[53];
  const Surface* diamonds[] = {&tile(53), &water, &water, &city.pictures.picMask[22],
                               &water,    &water, &water};
  int overlapping = 0;
  for (int near = 1; near < 7; ++near) {
    for (int far = 0; far < near; ++far) {
      int wrong = 0;
      eachPixel(288, 144, [&](int x, int y) {
        const Color a = diamonds[near]->pixel(x, y);
        const Color b = diamonds[far]->pixel(x - 122 * (near - far), y + 61 * (near - far));
        if (a == platform::kBlack || b == platform::kBlack) return;
        ++overlapping;
        wrong += a != b;
      });
      EXPECT_EQ(wrong, 0) << near << " over " << far;
    }
  }
  EXPECT_GT(overlapping, 0);
}

}  // namespace
}  // namespace map
