#include "platform/scaler.h"

#include "pixels.h"

namespace platform {
namespace {

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
        double sum = 0, all = 0;
        for (int row = 0; row < 30; ++row) {
          for (int column = 0; column < 40; ++column) {
            const double share = part(x, column, 40, place.width) * part(y, row, 30, place.height);
            sum += share * picture.pixel(column, row).g;
            all += share;
          }
        }
        const int shown = screen.at(place.left + x, place.top + y).g;
        worst = std::max(worst, std::abs(sum / all - shown));
      }
    }
    EXPECT_LT(worst, 2.5) << display.width;
  }
}

TEST(Scaler, BlendsByTheShareThatIsCovered) {
  // At 3 : 2 every third pixel of a row lies half on one pixel of the picture and half on the next.
  Surface bars(2, 2);
  bars.fill({0, 0, 1, 2}, {200, 0, 100});
  Scaler half({2, 2}, {3, 3});
  Screen small({3, 3});
  small.scale(half, bars, half.place());
  EXPECT_EQ(small.at(0, 1), (Color{200, 0, 100}));
  EXPECT_EQ(small.at(1, 1), (Color{100, 0, 50}));
  EXPECT_EQ(small.at(2, 1), kBlack);
}

}  // namespace
}  // namespace platform
