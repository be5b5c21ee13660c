// What the pictures of the game must satisfy to work with the drawing.
#include "map/picture_set.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "map/made_up_city.h"
#include "map/walker_designs.h"
#include "platform/png.h"
#include "support/temp_folder.h"

namespace map {
namespace {

const std::string kFolder = std::string(VELLMORAN_SOURCE_DIR) + "/data/pictures";

class Pictures : public ::testing::Test {
 protected:
  Pictures() {
    std::string error;
    EXPECT_TRUE(loadPictures(city.pictures, kFolder, error)) << error;
  }
  const Surface& tile(int n) const { return city.pictures.picTile[static_cast<std::size_t>(n)]; }
  bool isOpaque(int n, int x, int y) const {
    const Surface& mask = city.pictures.picMask[static_cast<std::size_t>(n)];
    return mask.bounds().contains({x, y}) &&
           !(tile(n).pixel(x, y) == platform::kWhite && mask.pixel(x, y) == platform::kBlack);
  }
  // Pixels of the diamond at `left`, `top` that no given piece covers.
  struct Piece {
    int number, left, top;
  };
  int uncovered(const std::vector<Piece>& pieces, int left, int top) const {
    int count = 0;
    for (int y = 0; y < 32; ++y) {
      for (int x = 0; x < 64; ++x) {
        bool covered = !inDiamond(x, y);
        for (const Piece& piece : pieces) {
          covered |= isOpaque(piece.number, left + x - piece.left, top + y - piece.top);
        }
        count += !covered;
      }
    }
    return count;
  }
  MadeUpCity city;
};

TEST(PictureFiles, ThatAreMissingOrOfAnotherSizeAreNamed) {
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

TEST_F(Pictures, AreWhollyOpaqueOrWhollyTransparentInEachPixel) {
  for (const auto& entry : std::filesystem::directory_iterator(kFolder + "/pair")) {
    std::vector<std::uint8_t> rgba;
    platform::Size size;
    std::string error;
    ASSERT_TRUE(platform::readPngRgba(entry.path(), rgba, size, error)) << error;
    for (std::size_t i = 3; i < rgba.size(); i += 4) {
      ASSERT_TRUE(rgba[i] == 0 || rgba[i] == 255) << entry.path();
    }
  }
}

TEST_F(Pictures, OfFlatCellsAreExactDiamonds) {
  for (const PictureFile& file : pictureFiles()) {
    if (file.size.width < 63 || file.size.height > 33) continue;
    int wrong = 0;
    for (int y = 0; y < 32; ++y) {
      for (int x = 0; x < 64; ++x) {
        // The two side pieces of the apartment are cut; what matters is that nothing sticks out.
        const bool cut = file.size.width == 63;
        wrong += isOpaque(file.number, x, y) ? !inDiamond(x, y) : inDiamond(x, y) && !cut;
      }
    }
    EXPECT_EQ(wrong, 0) << "picture " << file.number;
  }
}

TEST_F(Pictures, OfBuildingsCoverTheirFootprint) {
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

// Walkers are painted over these corners where no rule repaints what stands in front of them; a corner
// over the building's own anchor needs no care, as the anchor is asked for.
TEST_F(Pictures, OfTallCellsLeaveTheirUpperCornersFree) {
  for (const PictureFile& file : pictureFiles()) {
    const int n = file.number;
    if (file.size.height != 64 || n >= 59) continue;
    const bool right = n == 9 || n == 31 || n == 46 || n == 32;
    const bool left = n == 10 || n == 26 || n == 45 || n == 18;
    for (int y = 0; y < 7; ++y) {
      for (int x = 0; x < 12; ++x) {
        EXPECT_FALSE(!right && x + 2 * y < 12 && isOpaque(n, x, y)) << n << ": " << x << ", " << y;
        EXPECT_FALSE(!left && isOpaque(n, 63 - x, y)) << n << ": " << 63 - x << ", " << y;
      }
    }
  }
}

TEST_F(Pictures, OfWalkersContinueTheRoad) {
  for (const WalkerDesign& design : kWalkerDesigns) {
    int compared = 0;
    int wrong = 0;
    for (int step = -32; step <= 32; ++step) {
      for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < 12; ++x) {
          const int px = design.base.x + step * design.pixelStep.x + x;
          const int py = design.base.y - 32 + step * design.pixelStep.y + y;
          if (!inDiamond(px, py)) continue;
          ++compared;
          wrong += tile(design.patch).pixel(x, y) != tile(design.road).pixel(px, py);
        }
      }
    }
    EXPECT_GT(compared, 12 * 17 * 8);
    EXPECT_EQ(wrong, 0) << "patch " << design.patch;
    for (const int frame : design.frames) {
      int figure = 0;
      for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < 12; ++x) {
          if (tile(frame).pixel(x, y) == tile(design.patch).pixel(x, y)) continue;
          ++figure;
          EXPECT_TRUE(x >= 2 && x < 10 && y >= 1 && y < 16) << frame << ": " << x << ", " << y;
        }
      }
      EXPECT_GT(figure, 0) << frame;
    }
  }
}

TEST_F(Pictures, OfTheViewsHaveTheColoursOfTheLegend) {
  for (const auto& [n, inner] : {std::pair{16, Color{159, 207, 240}},
                                 {17, Color{255, 128, 159}},
                                 {58, Color{192, 192, 192}}}) {
    int outline = 0;
    for (int y = 0; y < 32; ++y) {
      for (int x = 0; x < 64; ++x) {
        if (!inDiamond(x, y)) continue;
        const bool grey = tile(n).pixel(x, y) == Color{128, 128, 128};
        outline += grey;
        EXPECT_TRUE(grey || tile(n).pixel(x, y) == inner) << n << ": " << x << ", " << y;
      }
    }
    EXPECT_GT(outline, 60) << n;
    EXPECT_LT(outline, 400) << n;
  }
  city.canvas.surface().clear(platform::kWhite);
  city.canvas.pair(0, 0, 64, 32, tile(20), city.pictures.picMask[20]);
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 64; ++x) {
      ASSERT_EQ(city.canvas.surface().pixel(x, y),
                inDiamond(x, y) ? platform::kBlack : platform::kWhite);
    }
  }
}

TEST_F(Pictures, OfBackdropsLeaveThePlaySquareAlone) {
  for (const auto& [mission, size] : {std::pair{1, 18}, {4, 22}, {9, 12}}) {
    city.values.gMission = mission;
    city.canvas.surface().clear();
    paintBackdrop(city.stage);
    int lit = 0;
    for (int y = 15 - size / 2; y <= 15 + size / 2; ++y) {
      for (int x = 15 - size / 2; x <= 15 + size / 2; ++x) {
        for (int py = 0; py < 32; ++py) {
          for (int px = 0; px < 64; ++px) {
            lit += inDiamond(px, py) &&
                   city.canvas.surface().pixel(32 * (x - y) + 960 + px, 16 * (x + y) + 32 + py) !=
                       platform::kBlack;
          }
        }
      }
    }
    EXPECT_EQ(lit, 0) << "mission " << mission;
  }
}

TEST_F(Pictures, OfWaterRunIntoOneAnother) {
  // From right to left; each lies 122 left and 61 below the one before.
  const Surface& water = city.pictures.picMask[53];
  const Surface* diamonds[] = {&tile(53), &water, &water, &city.pictures.picMask[22],
                               &water,    &water, &water};
  int overlapping = 0;
  for (int near = 1; near < 7; ++near) {
    for (int far = 0; far < near; ++far) {
      int wrong = 0;
      for (int y = 0; y < 144; ++y) {
        for (int x = 0; x < 288; ++x) {
          const Color a = diamonds[near]->pixel(x, y);
          const Color b = diamonds[far]->pixel(x - 122 * (near - far), y + 61 * (near - far));
          if (a == platform::kBlack || b == platform::kBlack) continue;
          ++overlapping;
          wrong += a != b;
        }
      }
      EXPECT_EQ(wrong, 0) << near << " over " << far;
    }
  }
  EXPECT_GT(overlapping, 0);
}

}  // namespace
}  // namespace map
