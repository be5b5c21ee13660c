#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>

#include "platform/canvas.h"
#include "platform/png.h"
#include "platform/surface.h"

namespace platform {
namespace {

using Dice = std::mt19937;

int roll(Dice& dice, int from, int to) {
  return std::uniform_int_distribution<int>(from, to)(dice);
}

Surface noise(Dice& dice, int width, int height) {
  Surface surface(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width * 3; ++x) {
      surface.row(y)[x] = static_cast<std::uint8_t>(roll(dice, 0, 255));
    }
  }
  return surface;
}

bool same(const Surface& a, const Surface& b) {
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (a.pixel(x, y) != b.pixel(x, y)) return false;
    }
  }
  return a.width() == b.width() && a.height() == b.height();
}

Color applied(Color d, Color s, std::uint32_t operation) {
  const auto one = [operation](int a, int b) {
    return static_cast<std::uint8_t>(operation == SRCAND     ? a & b
                                     : operation == SRCPAINT ? a | b
                                                             : b);
  };
  return {one(d.r, s.r), one(d.g, s.g), one(d.b, s.b)};
}

TEST(Raster, CopiesClipOnBothSidesAsAWalkPixelByPixelDoes) {
  Dice dice(1);
  const std::uint32_t operations[] = {SRCCOPY, SRCAND, SRCPAINT};
  for (int round = 0; round < 1500; ++round) {
    Surface target = noise(dice, roll(dice, 0, 40), roll(dice, 0, 20));
    const Surface source = noise(dice, roll(dice, 0, 40), roll(dice, 0, 20));
    const int x = roll(dice, -30, 45), y = roll(dice, -15, 25);
    const int width = roll(dice, -2, 50), height = roll(dice, -2, 30);
    const int fromX = roll(dice, -10, 30), fromY = roll(dice, -10, 15);
    const bool scaled = round % 3 == 0;
    const int fromWidth = scaled ? roll(dice, 1, 50) : width;
    const int fromHeight = scaled ? roll(dice, 1, 30) : height;
    const std::uint32_t operation = operations[round % 7 % 3];
    Surface expected = target.clone();
    for (int j = 0; j < height; ++j) {
      for (int i = 0; i < width; ++i) {
        const int sx = fromX + (2 * i + 1) * fromWidth / (2 * width);
        const int sy = fromY + (2 * j + 1) * fromHeight / (2 * height);
        if (!source.bounds().contains({sx, sy})) continue;
        expected.setPixel(x + i, y + j,
                          applied(expected.pixel(x + i, y + j), source.pixel(sx, sy), operation));
      }
    }
    StretchBlt(target, x, y, width, height, source, fromX, fromY, fromWidth, fromHeight, operation);
    ASSERT_TRUE(same(target, expected)) << "round " << round;
  }
}

TEST(Raster, PairEqualsTheTwoCopiesAlsoWithPicturesOfUnequalSize) {
  Dice dice(2);
  for (int round = 0; round < 600; ++round) {
    Surface one = noise(dice, 40, 20);
    Surface two = one.clone();
    const Surface tile = noise(dice, roll(dice, 1, 30), roll(dice, 1, 30));
    const Surface mask = round % 2 == 0 ? noise(dice, tile.width(), tile.height())
                                        : noise(dice, roll(dice, 1, 30), roll(dice, 1, 30));
    const int x = roll(dice, -30, 45), y = roll(dice, -30, 25);
    const int width = roll(dice, 0, 40), height = roll(dice, 0, 40);
    blitPair(one, x, y, width, height, tile, mask);
    BitBlt(two, x, y, width, height, tile, 0, 0, SRCAND);
    BitBlt(two, x, y, width, height, mask, 0, 0, SRCPAINT);
    ASSERT_TRUE(same(one, two)) << "round " << round;
  }
}

TEST(Raster, AnUnknownOperationChangesNothing) {
  Dice dice(3);
  Surface target = noise(dice, 8, 8);
  const Surface before = target.clone();
  const Surface source = noise(dice, 8, 8);
  BitBlt(target, 0, 0, 8, 8, source, 0, 0, 0x12345678);
  StretchBlt(target, 0, 0, 8, 8, source, 0, 0, 4, 4, 0x12345678);
  EXPECT_TRUE(same(target, before));
}

TEST(Damage, LosesNoPixelWhateverIsAdded) {
  Dice dice(4);
  for (int round = 0; round < 50; ++round) {
    DamageList list;
    std::vector<Rect> added;
    for (int i = 0; i < 200; ++i) {
      const Rect rect{roll(dice, 0, 90), roll(dice, 0, 90), roll(dice, 0, 12), roll(dice, 0, 12)};
      list.add(rect);
      added.push_back(rect);
    }
    for (const Rect& rect : added) {
      for (int y = rect.top; y < rect.bottom(); ++y) {
        for (int x = rect.left; x < rect.right(); ++x) {
          bool found = false;
          for (const Rect& kept : list.rects()) found = found || kept.contains({x, y});
          ASSERT_TRUE(found || rect.empty());
        }
      }
    }
  }
}

TEST(Canvas, ShowsOnlyAtARefreshWhatWasDrawn) {
  Dice dice(5);
  Canvas canvas(50, 40);
  const Surface picture = noise(dice, 20, 20);
  canvas.pair(40, 30, 20, 20, picture, picture);
  EXPECT_TRUE(canvas.shown().empty());
  canvas.refresh();
  ASSERT_EQ(canvas.shown().rects().size(), 1u);
  EXPECT_EQ(canvas.shown().rects()[0], (Rect{40, 30, 10, 10}));
  canvas.shown().clear();
  canvas.refresh();
  EXPECT_TRUE(canvas.shown().empty());
}

class Png : public testing::Test {
 protected:
  // A name of its own for each test, so that tests that run at the same time do not meet.
  std::string path_ = testing::TempDir() + "vellmoran_" +
                      testing::UnitTest::GetInstance()->current_test_info()->name() + ".png";
  std::string error_;
  ~Png() override { std::remove(path_.c_str()); }
};

TEST_F(Png, ComesBackAsItWasWritten) {
  Dice dice(6);
  const Surface written = noise(dice, 37, 11);
  ASSERT_TRUE(writePng(path_, written, error_)) << error_;
  Surface read, onWhite, onBlack;
  ASSERT_TRUE(readPng(path_, read, error_)) << error_;
  EXPECT_TRUE(same(read, written));
  ASSERT_TRUE(readPngPair(path_, onWhite, onBlack, error_)) << error_;
  EXPECT_TRUE(same(onWhite, written) && same(onBlack, written));
}

TEST_F(Png, MissingAndDamagedFilesAreNamedAndLeaveTheSurfaceAlone) {
  Dice dice(7);
  ASSERT_TRUE(writePng(path_, noise(dice, 60, 60), error_));
  std::ifstream file(path_, std::ios::binary);
  const std::string whole{std::istreambuf_iterator<char>(file), {}};
  Surface kept(3, 2);
  for (std::size_t length = 0; length < whole.size() - 20; length += 997) {
    std::ofstream(path_, std::ios::binary) << whole.substr(0, length);
    error_.clear();
    EXPECT_FALSE(readPng(path_, kept, error_)) << length;
    EXPECT_NE(error_.find(path_), std::string::npos);
  }
  std::string broken = whole;
  broken[whole.size() / 2] = static_cast<char>(broken[whole.size() / 2] ^ 0x55);
  std::ofstream(path_, std::ios::binary) << broken;
  EXPECT_FALSE(readPng(path_, kept, error_));
  EXPECT_FALSE(readPng(path_ + ".none", kept, error_));
  EXPECT_EQ(kept.width(), 3);
  EXPECT_FALSE(writePng(testing::TempDir() + "no such folder/a.png", kept, error_));
}

}  // namespace
}  // namespace platform
