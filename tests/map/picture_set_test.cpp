// What the pictures of the game must satisfy to work with the drawing.
#include "map/picture_set.h"

#include <gtest/gtest.h>

#include <vector>

#include "map/made_up_city.h"
#include "map/walker_designs.h"

namespace map {
namespace {

// Whether a pixel of colour `a` stays as it is when `b` is ORed onto it.
bool covers(Color a, Color b) {
  return (a.r | b.r) == a.r && (a.g | b.g) == a.g && (a.b | b.b) == a.b;
}

// Places and sizes are pixels of the scale, which is the parameter.
class RealPictures : public ::testing::TestWithParam<int> {
 protected:
  struct Piece {
    int number, left, top;  // in units
  };

  RealPictures() {
    std::string error;
    const std::string folder = VELLMORAN_SOURCE_DIR "/data/pictures";
    EXPECT_TRUE(loadPictures(pictures, s == 1 ? folder : folder + "/2x", error)) << error;
  }
  const Surface& tile(int n) const { return pictures.picTile[static_cast<std::size_t>(n)]; }
  const Surface& mask(int n) const { return pictures.picMask[static_cast<std::size_t>(n)]; }
  bool inCell(int x, int y) const { return inDiamond(x, y, s); }
  bool isOpaque(int n, int x, int y) const {
    return mask(n).pixelBounds().contains({x, y}) &&
           !(tile(n).pixel(x, y) == platform::kWhite && mask(n).pixel(x, y) == platform::kBlack);
  }
  // Pixels of the diamond at `left`, `top` that no piece covers.
  int uncovered(const std::vector<Piece>& pieces, int left, int top) const {
    int count = 0;
    eachPixel(64 * s, 32 * s, [&](int x, int y) {
      bool covered = !inCell(x, y);
      for (const Piece& piece : pieces) {
        covered |= isOpaque(piece.number, s * (left - piece.left) + x, s * (top - piece.top) + y);
      }
      count += !covered;
    });
    return count;
  }

  const int s = GetParam();
  MadeUpCity city;
  PictureSet pictures{s};
  platform::Canvas canvas{1984, 1056, s};
};

INSTANTIATE_TEST_SUITE_P(AtBothSizes, RealPictures, ::testing::Values(1, 2));

TEST_P(RealPictures, OfFlatCellsAreExactDiamonds) {
  for (const PictureFile& file : pictureFiles()) {
    if (file.size.width < 63 || file.size.height > 33) continue;
    // Of the two side pieces of the apartment, which are cut, nothing may stick out. The front one
    // has one pixel of the left one's tip, where that ends a pixel short.
    const bool cut = file.size.width == 63;
    const int lent = file.number == 7 ? s - 1 : 0;
    int wrong = 0;
    eachPixel(64 * s, 32 * s, [&](int x, int y) {
      wrong += isOpaque(file.number, x, y) ? !inCell(x, y) : inCell(x, y) && !cut;
    });
    EXPECT_EQ(wrong, lent) << "picture " << file.number;
  }
}

TEST_P(RealPictures, OfBuildingsCoverTheirFootprint) {
  std::vector<const core::Look*> blocks{&core::kHouse, &core::kApartment};
  for (const core::Building& building : core::kBuildings) {
    if (building.side == 2) blocks.push_back(&building.look);
  }
  for (const core::Look* block : blocks) {
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < 4; ++i) {
      const auto [x, y] = core::kBlock[i];
      pieces.push_back(
          {block->images[i], 32 * (x - y), 16 * (x + y) + (block->tall[i] == 1 ? 0 : 32)});
    }
    for (const auto& [x, y] : core::kBlock) {
      // The box of the apartment's right piece ends two pixels before its tip at scale 2.
      const bool tip = block == &core::kApartment && x == 1 && y == 0;
      EXPECT_EQ(uncovered(pieces, 32 * (x - y), 16 * (x + y) + 32), tip ? 2 * (s - 1) : 0)
          << "building of picture " << block->images[0] << ", cell " << x << ", " << y;
    }
  }
  for (const int alone : {12, 59, 60, 61}) EXPECT_EQ(uncovered({{alone, 0, 0}}, 0, 32), 0) << alone;
}

TEST_P(RealPictures, OfWalkersContinueTheRoad) {
  for (const WalkerDesign& design : kWalkerDesigns) {
    int compared = 0;
    int wrong = 0;
    for (int step = -32; step <= 32; ++step) {
      eachPixel(12 * s, 17 * s, [&](int x, int y) {
        const int px = s * (design.base.x + step * design.pixelStep.x) + x;
        const int py = s * (design.base.y - 32 + step * design.pixelStep.y) + y;
        if (!inCell(px, py)) return;
        ++compared;
        wrong += tile(design.patch).pixel(x, y) != tile(design.road).pixel(px, py);
      });
    }
    EXPECT_GT(compared, 12 * 17 * 8 * s * s);
    EXPECT_EQ(wrong, 0) << "patch " << design.patch;
    for (const int frame : design.frames) {
      int figure = 0;
      int atRim = 0;
      eachPixel(12 * s, 17 * s, [&](int x, int y) {
        if (tile(frame).pixel(x, y) == tile(design.patch).pixel(x, y)) return;
        ++(x >= 2 * s && x < 10 * s && y >= s && y < 16 * s ? figure : atRim);
      });
      EXPECT_GT(figure, 0) << frame;
      EXPECT_EQ(atRim, 0) << frame;
    }
  }
}

TEST_P(RealPictures, OfTheViewsAndTheVoidHaveTheirColours) {
  for (const auto& [n, inner] : {std::pair{16, Color{159, 207, 240}},
                                 {17, Color{255, 128, 159}},
                                 {58, Color{192, 192, 192}},
                                 {20, platform::kBlack}}) {
    canvas.surface().clear(platform::kWhite);
    canvas.pair(0, 0, 64, 32, tile(n), mask(n));
    int marked = 0;
    int wrong = 0;
    eachPixel(64 * s, 32 * s, [&](int x, int y) {
      const Color color = canvas.surface().pixel(x, y);
      if (!inCell(x, y)) {
        wrong += color != platform::kWhite;
      } else if (!inCell(x - s, y) || !inCell(x + s, y)) {
        wrong += n != 20 && color != Color{128, 128, 128};
      } else if (color != inner) {
        // The mark is a darker shade.
        ++marked;
        wrong += color.r > inner.r || color.g > inner.g || color.b > inner.b;
      }
    });
    EXPECT_EQ(canvas.surface().pixel(32 * s, 16 * s), inner) << n;
    EXPECT_EQ(wrong, 0) << n;
    // The mark leaves most of the diamond to the colour.
    EXPECT_TRUE(n == 20 ? marked == 0 : marked > 40 * s * s && marked < 200 * s * s) << n;
  }
}

TEST_P(RealPictures, OfBackdropsLeaveThePlaySquareAlone) {
  for (const auto& [mission, size] : {std::pair{1, 18}, {4, 22}, {9, 12}}) {
    city.values.gMission = mission;
    canvas.surface().clear();
    Stage stage{city.game, city.values, pictures, canvas};
    paintBackdrop(stage);
    const int first = 15 - size / 2;
    int lit = 0;
    eachPixel(size + 1, size + 1, [&](int x, int y) {
      const int left = 32 * (x - y) + 960;
      const int top = 16 * (x + y + 2 * first) + 32;
      eachPixel(64 * s, 32 * s, [&](int px, int py) {
        lit += inCell(px, py) &&
               canvas.surface().pixel(s * left + px, s * top + py) != platform::kBlack;
      });
    });
    EXPECT_EQ(lit, 0) << "mission " << mission;
  }
}

TEST_P(RealPictures, OfWaterRunIntoOneAnother) {
  // From right to left; each is 122 left and 61 below the one before.
  const Surface& water = mask(53);
  const Surface* diamonds[] = {&tile(53), &water, &water, &mask(22), &water, &water, &water};
  int overlapping = 0;
  for (int near = 1; near < 7; ++near) {
    for (int far = 0; far < near; ++far) {
      int wrong = 0;
      eachPixel(288 * s, 144 * s, [&](int x, int y) {
        const Color a = diamonds[near]->pixel(x, y);
        const Color b = diamonds[far]->pixel(x - 122 * s * (near - far), y + 61 * s * (near - far));
        if (a == platform::kBlack || b == platform::kBlack) return;
        ++overlapping;
        wrong += !covers(a, b) && !covers(b, a);
      });
      EXPECT_EQ(wrong, 0) << near << " over " << far;
    }
  }
  EXPECT_GT(overlapping, 0);
}

}  // namespace
}  // namespace map
