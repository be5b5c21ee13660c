

#include "pixels.h"
#include "platform/damage.h"
#include "platform/png.h"
#include "platform/scaler.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

constexpr std::uint32_t kUnknownOperation = 0x12345678;  // changes nothing

Color applied(Color d, Color s, std::uint32_t operation) {
  const auto one = [operation](int a, int b) {
    return static_cast<std::uint8_t>(operation == SRCAND     ? a & b
                                     : operation == SRCPAINT ? a | b
                                     : operation == SRCCOPY  ? b
                                                             : a);
  };
  return {one(d.r, s.r), one(d.g, s.g), one(d.b, s.b)};
}

TEST(Raster, CopiesClipOnBothSidesAsAWalkPixelByPixelDoes) {
  Dice dice(1);
  const std::uint32_t operations[] = {SRCCOPY, SRCAND, SRCPAINT, kUnknownOperation};
  for (int round = 0; round < 1500; ++round) {
    Surface target = noise(dice, roll(dice, 0, 40), roll(dice, 0, 20));
    const Surface source = noise(dice, roll(dice, 0, 40), roll(dice, 0, 20));
    const int x = roll(dice, -30, 45), y = roll(dice, -15, 25);
    const int width = roll(dice, -2, 50), height = roll(dice, -2, 30);
    const int fromX = roll(dice, -10, 30), fromY = roll(dice, -10, 15);
    const bool scaled = round % 3 == 0;
    const int fromWidth = scaled ? roll(dice, 1, 50) : width;
    const int fromHeight = scaled ? roll(dice, 1, 30) : height;
    const std::uint32_t operation = operations[round % 4];
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
    Surface one = noise(dice, 40, 20), two = one.clone();
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

TEST(Raster, PairDrawnByItsRowsEqualsThePairDrawnWhole) {
  Dice dice(3);
  for (int round = 0; round < 400; ++round) {
    const int scale = 1 + round % 2;
    Surface one(40, 20, scale), tile(roll(dice, 1, 30), roll(dice, 1, 30), scale);
    Surface mask(tile.width(), tile.height(), scale);
    one.clear({90, 140, 70});
    tile.clear(kWhite);
    for (int dots = roll(dice, 0, 40); dots > 0; --dots) {
      const Point at{roll(dice, 0, 29), roll(dice, 0, 29)};
      if (round % 3 != 0) tile.setPixel(at.x, at.y, {10, 20, 30});
      if (round % 3 != 1) mask.setPixel(at.x, at.y, {10, 20, 30});
    }
    Surface two = one.clone();
    const int x = roll(dice, -30, 45), y = roll(dice, -30, 25);
    const int width = roll(dice, 0, 40), height = roll(dice, 0, 40);
    const bool changed = blitPair(one, x, y, width, height, tile, mask);
    ASSERT_EQ(blitPair(two, x, y, width, height, tile, mask, pairRows(tile, mask)), changed);
    ASSERT_TRUE(same(one, two)) << "round " << round;
  }
}

TEST(Damage, LosesNoPixelWhateverIsAdded) {
  Dice dice(4);
  for (int round = 0; round < 50; ++round) {
    DamageList list;
    Surface added(110, 110), kept(110, 110);
    for (int i = 0; i < 200; ++i) {
      const Rect rect{roll(dice, 0, 90), roll(dice, 0, 90), roll(dice, 0, 12), roll(dice, 0, 12)};
      list.add(rect);
      added.fill(rect, kWhite);
    }
    for (const Rect& rect : list.rects()) kept.fill(rect, kWhite);
    BitBlt(added, 0, 0, 110, 110, kept, 0, 0, SRCPAINT);
    ASSERT_TRUE(same(added, kept)) << "round " << round;
  }
}

TEST(Png, ComesBackAsItWasWrittenAndDamagedFilesAreNamedAndLeaveTheSurfaceAlone) {
  Dice dice(6);
  const support::TempFolder folder;
  const std::string path = folder / "a.png";
  const Surface written = noise(dice, 61, 60);
  Surface read, onWhite, onBlack, kept(3, 2);
  std::string error;
  EXPECT_FALSE(readPng(path, kept, error));
  ASSERT_TRUE(writePng(path, written, error)) << error;
  ASSERT_TRUE(readPng(path, read, error)) << error;
  ASSERT_TRUE(readPngPair(path, onWhite, onBlack, error)) << error;
  EXPECT_TRUE(same(read, written) && same(onWhite, written) && same(onBlack, written));

  std::string whole = support::bytesOf(path);
  for (std::size_t length = 0; length < whole.size() - 20; length += 997) {
    support::putFile(path, whole.substr(0, length));
    error.clear();
    EXPECT_FALSE(readPng(path, kept, error)) << length;
    EXPECT_NE(error.find(path), std::string::npos);
  }
  whole[whole.size() / 2] = static_cast<char>(whole[whole.size() / 2] ^ 0x55);
  support::putFile(path, whole);
  EXPECT_FALSE(readPng(path, kept, error));
  EXPECT_TRUE(same(kept, Surface(3, 2)));
  EXPECT_FALSE(writePng(folder / "no such folder/a.png", kept, error));
}

constexpr Size kPicture{800, 600};

struct Screen {
  explicit Screen(Size size)
      : stride(static_cast<std::size_t>(size.width) * 4),
        pixels(stride * static_cast<std::size_t>(size.height), 0xEE) {}
  void scale(Scaler& scaler, const Surface& picture, const Rect& part) {
    PixelMemory memory;
    memory.pixels = pixels.data();
    memory.stride = stride;
    scaler.scale(picture, part, memory);
  }
  Color at(int x, int y) const {
    const std::uint8_t* p =
        &pixels[static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(x) * 4];
    return {p[2], p[1], p[0]};
  }
  std::size_t stride;
  std::vector<std::uint8_t> pixels;
};

TEST(Scaler, FillsAndKeepsTheAspectGivesPartsAsTheWholeAndLeadsThePointerBack) {
  const struct {
    Size display;
    Rect place;
    bool whole;
  } cases[] = {
      {{800, 600}, {0, 0, 800, 600}, true},       {{1600, 1200}, {0, 0, 1600, 1200}, true},
      {{1920, 1200}, {160, 0, 1600, 1200}, true}, {{1024, 666}, {112, 33, 800, 600}, true},
      {{1024, 667}, {67, 0, 889, 667}, false},    {{1920, 1080}, {240, 0, 1440, 1080}, false},
      {{1366, 768}, {171, 0, 1024, 768}, false},  {{1080, 1920}, {0, 555, 1080, 810}, false},
      {{640, 480}, {0, 0, 640, 480}, false},
  };
  Dice dice(8);
  for (const auto& [display, place, whole] : cases) {
    SCOPED_TRACE(testing::Message() << display.width << " x " << display.height);
    Scaler scaler(kPicture, display);
    EXPECT_EQ(scaler.place(), place);
    EXPECT_EQ(scaler.whole(), whole);
    EXPECT_EQ(scaler.covered({0, 0, kPicture.width, kPicture.height}), place);

    Surface picture = noise(dice, kPicture.width, kPicture.height);
    Screen pieced(display), atOnce(display);
    pieced.scale(scaler, picture, place);
    for (const Rect part : {Rect{0, 0, 1, 1}, Rect{799, 599, 1, 1}, Rect{333, 101, 64, 31}}) {
      picture.fill(part, kRed);
      pieced.scale(scaler, picture, scaler.covered(part));
    }
    atOnce.scale(scaler, picture, place);
    EXPECT_TRUE(pieced.pixels == atOnce.pixels);
    if (place.left > 0) {
      EXPECT_EQ(atOnce.at(place.left - 1, display.height / 2), (Color{0xEE, 0xEE, 0xEE}));
      EXPECT_EQ(atOnce.at(place.right(), display.height / 2), (Color{0xEE, 0xEE, 0xEE}));
    }

    EXPECT_EQ(scaler.pictured({place.left - 1, place.top - 1}), (Point{0, 0})) << "to the rim";
    if (display.width < kPicture.width) continue;
    EXPECT_EQ(scaler.pictured({place.right(), place.bottom()}), (Point{799, 599}));
    for (const Point p : {Point{0, 0}, Point{799, 599}, Point{622, 50}, Point{401, 333}}) {
      const Rect seen = scaler.covered({p.x, p.y, 1, 1});
      const Point middle{seen.left + seen.width / 2, seen.top + seen.height / 2};
      EXPECT_EQ(scaler.pictured(middle), p);
      EXPECT_TRUE(!whole || atOnce.at(middle.x, middle.y) == picture.pixel(p.x, p.y));
    }
  }
}

TEST(Scaler, TakesOfEveryPixelThePartThatIsCoveredUpAndDown) {
  Dice dice(9);
  const Surface picture = noise(dice, 40, 30);
  for (const Size display : {Size{72, 54}, Size{36, 27}, Size{25, 19}, Size{9, 7}}) {
    Scaler scaler({40, 30}, display);
    const Rect& place = scaler.place();
    Screen screen(display);
    screen.scale(scaler, picture, place);
    const auto part = [](int i, int pixel, int from, int to) {
      return std::max(0.0, std::min(double(i + 1) * from / to, pixel + 1.0) -
                               std::max(double(i) * from / to, double(pixel)));
    };
    double worst = 0;
    for (int y = 0; y < place.height; ++y) {
      for (int x = 0; x < place.width; ++x) {
        double red = 0, green = 0, blue = 0, all = 0;
        for (int row = 0; row < 30; ++row) {
          for (int column = 0; column < 40; ++column) {
            const double share = part(x, column, 40, place.width) * part(y, row, 30, place.height);
            red += share * picture.pixel(column, row).r;
            green += share * picture.pixel(column, row).g;
            blue += share * picture.pixel(column, row).b;
            all += share;
          }
        }
        const Color shown = screen.at(place.left + x, place.top + y);
        worst = std::max({worst, std::abs(red / all - shown.r), std::abs(green / all - shown.g),
                          std::abs(blue / all - shown.b)});
      }
    }
    EXPECT_LT(worst, 2.5) << display.width;
  }
}

}  // namespace
}  // namespace platform
