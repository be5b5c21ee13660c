// What the pictures of the game must satisfy to work with the drawing. Their shapes, colours and
// seams are checked where they are made.
#include "map/picture_set.h"

#include <gtest/gtest.h>

#include "map/made_up_city.h"
#include "platform/png.h"
#include "support/temp_folder.h"

namespace map {
namespace {

class Pictures : public ::testing::Test {
 protected:
  Pictures() {
    EXPECT_TRUE(loadPictures(set, VELLMORAN_SOURCE_DIR "/data/pictures", error)) << error;
  }
  bool isOpaque(int n, int x, int y) const {
    const Surface& mask = set.picMask[static_cast<std::size_t>(n)];
    return mask.bounds().contains({x, y}) &&
           !(set.picTile[static_cast<std::size_t>(n)].pixel(x, y) == platform::kWhite &&
             mask.pixel(x, y) == platform::kBlack);
  }
  PictureSet set;
  std::string error;
};

TEST_F(Pictures, ThatAreMissingOrOfAnotherSizeAreNamed) {
  support::TempFolder folder;
  EXPECT_FALSE(loadPictures(set, folder.path(), error));
  EXPECT_NE(error.find("00.png"), std::string::npos) << error;
  std::filesystem::create_directory(folder / "pair");
  ASSERT_TRUE(platform::writePng(folder / "pair/00.png", Surface(32, 64), error));
  EXPECT_FALSE(loadPictures(set, folder.path(), error));
  EXPECT_NE(error.find("32 x 64"), std::string::npos) << error;
}

// Walkers are painted over these corners where no rule repaints what stands in front of them; a
// corner over the building's own anchor needs no care, as the anchor is asked for.
TEST_F(Pictures, OfTallCellsLeaveTheirUpperCornersFree) {
  for (const int n : {3, 8, 9, 10, 12, 14, 18, 25, 26, 31, 32, 44, 45, 46}) {
    const bool right = n == 9 || n == 31 || n == 46 || n == 32;
    const bool left = n == 10 || n == 26 || n == 45 || n == 18;
    int painted = 0;
    eachPixel(12, 7, [&](int x, int y) {
      painted +=
          (!right && x + 2 * y < 12 && isOpaque(n, x, y)) || (!left && isOpaque(n, 63 - x, y));
    });
    EXPECT_EQ(painted, 0) << n;
  }
}

}  // namespace
}  // namespace map
