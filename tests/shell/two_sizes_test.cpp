// At twice the size every picture, letter and line is where it is at the plain size.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "shell/script_runner.h"

namespace {

using platform::Surface;
using script::Play;

constexpr int kWidth = 800;
constexpr int kHeight = 600;

// What the driver's commands have led to, at one scale.
class Shown {
 public:
  explicit Shown(int scale) : play_("", scale) {}
  const Surface& after(const std::string& script) {
    play_.run(script);
    play_.program().paint();
    return play_.program().framebuffer();
  }
  /// The first lines of a recorded play.
  const Surface& recorded(const std::string& name, int lines) {
    std::ifstream file(VELLMORAN_SOURCE_DIR "/docs/solutions/" + name);
    for (std::string line; lines > 0 && std::getline(file, line); --lines) {
      if (!line.empty() && line[0] != '#') play_(line);
    }
    return after("");
  }

 private:
  Play play_;
};

// The colours of three by three units around each unit, so that finer blades and letters weigh little.
std::vector<std::array<int, 3>> softened(const Surface& picture) {
  const int s = picture.scale();
  std::vector<std::array<int, 3>> soft(kWidth * kHeight);
  for (int y = 1; y < kHeight - 1; ++y) {
    for (int x = 1; x < kWidth - 1; ++x) {
      std::array<int, 3>& sum = soft[static_cast<std::size_t>(kWidth * y + x)];
      for (int py = (y - 1) * s; py < (y + 2) * s; ++py) {
        const std::uint8_t* p = picture.row(py) + 3 * (x - 1) * s;
        for (int i = 0; i < 9 * s; ++i) sum[static_cast<std::size_t>(i % 3)] += p[i];
      }
      for (int& value : sum) value /= 9 * s * s;
    }
  }
  return soft;
}

// In no square of 25 units may the two differ by more than 16 of 255 on average, and nowhere may they
// agree better, by 2 or more, when one is moved by two units. Ripe fields, whose ears are finer at
// scale 2, differ by 13 and fit a move better by .9.
void expectAlike(const Surface& one, const Surface& two, const std::string& what) {
  constexpr int kSide = 25;
  constexpr double kBetter = 2;
  ASSERT_EQ(one.scale(), 1);
  ASSERT_EQ(two.scale(), 2);
  const auto a = softened(one), b = softened(two);
  const auto apart = [&](int left, int top, int dx, int dy) {
    int sum = 0;
    int count = 0;
    for (int y = std::max(3, top); y < std::min(kHeight - 3, top + kSide); ++y) {
      for (int x = std::max(3, left); x < std::min(kWidth - 3, left + kSide); ++x) {
        const auto& p = a[static_cast<std::size_t>(kWidth * y + x)];
        const auto& q = b[static_cast<std::size_t>(kWidth * (y + dy) + x + dx)];
        for (std::size_t k = 0; k < 3; ++k) sum += std::abs(p[k] - q[k]);
        count += 3;
      }
    }
    return static_cast<double>(sum) / count;
  };
  for (int top = 0; top < kHeight; top += kSide) {
    for (int left = 0; left < kWidth; left += kSide) {
      const double inPlace = apart(left, top, 0, 0);
      EXPECT_LE(inPlace, 16) << what << " at " << left << ", " << top;
      if (inPlace <= kBetter) continue;
      for (const auto& [dx, dy] : {std::pair{2, 0}, {-2, 0}, {0, 2}, {0, -2}}) {
        EXPECT_LE(inPlace, apart(left, top, dx, dy) + kBetter)
            << what << " at " << left << ", " << top << " moved by " << dx << ", " << dy;
      }
    }
  }
}

TEST(TwoSizes, ShowTheSameInTheSamePlace) {
  const std::vector<std::string> steps{
      "seed 4; hover mainload; advance 100",
      "click maincredits",
      "click Command18, mainnew, stpuzzle",
      "click Command23, stcampaign; hover Label6(1); advance 50",
      "click Label6(0)",
      "click Command14; advance 500; pointer 400 400; advance 500",
      "set gold=20000; set population=1100; advance 1000; pointer 748 362; advance 100",
      "click Command21, Statusreport; advance 100",
      "click statusclose, Command5; advance 100; click Command7, gmmenu, savegame; advance 100",
      "click Cancelsave, seer(1); advance 500",
  };
  std::vector<Surface> plain;
  {
    Shown shown(1);
    for (const std::string& step : steps) plain.push_back(shown.after(step).clone());
  }
  Shown shown(2);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    expectAlike(plain[i], shown.after(steps[i]), steps[i]);
  }
}

TEST(TwoSizes, ShowTheSameCities) {
  const struct {
    const char* play;
    int lines;
  } cities[] = {
      {"campaign.txt", 270}, {"campaign.txt", 1600}, {"open_play.txt", 400}, {"puzzle05.txt", 55}};
  for (const auto& [play, lines] : cities) {
    const Surface plain = Shown(1).recorded(play, lines).clone();
    Shown shown(2);
    expectAlike(plain, shown.recorded(play, lines),
                play + std::string(" ") + std::to_string(lines));
  }
}

}  // namespace
