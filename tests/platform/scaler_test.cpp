#include "platform/scaler.h"

#include <gtest/gtest.h>

#include <vector>

namespace platform {
namespace {

constexpr Size kPicture{800, 600};

Surface patterned() {
  Surface picture(kPicture.width, kPicture.height);
  for (int y = 0; y < kPicture.height; ++y) {
    for (int x = 0; x < kPicture.width; ++x) {
      const int n = x * 31 + y * 17;
      picture.setPixel(x, y,
                       {static_cast<std::uint8_t>(n), static_cast<std::uint8_t>(n >> 3),
                        static_cast<std::uint8_t>(x ^ y)});
    }
  }
  return picture;
}

struct Screen {
  explicit Screen(Size size) : width(size.width), pixels(bytes(size), 0xEE) {}
  static std::size_t bytes(Size size) {
    return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height) * 4;
  }
  PixelMemory memory() {
    PixelMemory result;
    result.pixels = pixels.data();
    result.stride = static_cast<std::size_t>(width) * 4;
    return result;
  }
  Color at(int x, int y) const {
    const std::uint8_t* p = &pixels[static_cast<std::size_t>(y * width + x) * 4];
    return {p[2], p[1], p[0]};
  }
  int width;
  std::vector<std::uint8_t> pixels;
};

TEST(Scaler, WholeFactorsAreTakenWhereTheyNearlyFillAndTheAspectIsKept) {
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
  for (const auto& [display, place, whole] : cases) {
    const Scaler scaler(kPicture, display);
    EXPECT_EQ(scaler.place(), place) << display.width << " x " << display.height;
    EXPECT_EQ(scaler.whole(), whole) << display.width << " x " << display.height;
  }
}

TEST(Scaler, PartsGiveWhatTheWholeGivesAndNothingBeyondThemIsTouched) {
  for (const Size display : {kPicture, Size{1600, 1200}, Size{1366, 768}, Size{1920, 1080},
                             Size{640, 480}, Size{500, 900}}) {
    Surface picture = patterned();
    Scaler scaler(kPicture, display);
    Screen pieced(display);
    scaler.scale(picture, scaler.place(), pieced.memory());
    Rect all = scaler.covered({0, 0, kPicture.width, kPicture.height});
    EXPECT_EQ(all, scaler.place());
    for (const Rect part : {Rect{0, 0, 1, 1}, Rect{799, 599, 1, 1}, Rect{333, 101, 64, 31}}) {
      picture.fill(part, kRed);
      scaler.scale(picture, scaler.covered(part), pieced.memory());
    }
    Screen whole(display);
    scaler.scale(picture, scaler.place(), whole.memory());
    EXPECT_EQ(pieced.pixels, whole.pixels) << display.width << " x " << display.height;
    if (scaler.place().left > 0) {
      EXPECT_EQ(whole.at(scaler.place().left - 1, display.height / 2).r, 0xEE);
      EXPECT_EQ(whole.at(scaler.place().right(), display.height / 2).r, 0xEE);
    }
  }
}

TEST(Scaler, WholeFactorsCopyAndOthersBlendByTheShareThatIsCovered) {
  const Surface picture = patterned();
  Scaler doubled(kPicture, {1600, 1200});
  Screen large({1600, 1200});
  doubled.scale(picture, doubled.place(), large.memory());
  for (const Point p : {Point{0, 0}, Point{1599, 1199}, Point{801, 333}}) {
    EXPECT_EQ(large.at(p.x, p.y), picture.pixel(p.x / 2, p.y / 2));
  }
  // At 3 : 2 every third pixel of a row lies half on one pixel of the picture and half on the next.
  Surface bars(2, 2);
  bars.fill({0, 0, 1, 2}, {200, 0, 100});
  Scaler half({2, 2}, {3, 3});
  Screen small({3, 3});
  half.scale(bars, half.place(), small.memory());
  EXPECT_EQ(small.at(0, 1), (Color{200, 0, 100}));
  EXPECT_EQ(small.at(1, 1), (Color{100, 0, 50}));
  EXPECT_EQ(small.at(2, 1), kBlack);
}

TEST(Scaler, ThePointerComesBackToThePixelItIsSeenOnAndToTheRimFromTheBars) {
  for (const Size display : {kPicture, Size{1600, 1200}, Size{1366, 768}, Size{1920, 1080}}) {
    const Scaler scaler(kPicture, display);
    for (const Point p : {Point{0, 0}, Point{799, 599}, Point{622, 50}, Point{401, 333}}) {
      const Rect seen = scaler.covered({p.x, p.y, 1, 1});
      const Point middle{seen.left + seen.width / 2, seen.top + seen.height / 2};
      EXPECT_EQ(scaler.pictured(middle), p) << display.width << " x " << display.height;
    }
    EXPECT_EQ(scaler.pictured({-50, -50}), (Point{0, 0}));
    EXPECT_EQ(scaler.pictured({0, 0}), (Point{0, 0}));
    EXPECT_EQ(scaler.pictured({display.width - 1, display.height - 1}), (Point{799, 599}));
    EXPECT_EQ(scaler.pictured({9999, 9999}), (Point{799, 599}));
  }
}

}  // namespace
}  // namespace platform
