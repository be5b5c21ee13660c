// At twice the size every picture, letter and line is where it is at the plain size.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "shell/script_runner.h"

namespace {

using platform::Surface;
using script::Play;

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

// The colour of three by three units around (x, y), so that finer blades and letters weigh little.
std::array<int, 3> around(const Surface& picture, int x, int y) {
  const int s = picture.scale();
  std::array<int, 3> sum{};
  for (int py = (y - 1) * s; py < (y + 2) * s; ++py) {
    for (int px = (x - 1) * s; px < (x + 2) * s; ++px) {
      const platform::Color color = picture.pixel(px, py);
      sum[0] += color.r;
      sum[1] += color.g;
      sum[2] += color.b;
    }
  }
  for (int& value : sum) value /= 9 * s * s;
  return sum;
}

// In no square of 25 units may the two differ by more than 16 of 255 on average. Ripe fields, of ears
// that are finer at scale 2, differ by 13; a picture two units off its place by 20 and more.
void expectAlike(const Surface& one, const Surface& two, const std::string& what) {
  constexpr int kSide = 25;
  ASSERT_EQ(one.scale(), 1);
  ASSERT_EQ(two.scale(), 2);
  for (int top = 0; top < 600; top += kSide) {
    for (int left = 0; left < 800; left += kSide) {
      int apart = 0;
      for (int y = top + 1; y < top + kSide - 1; y += 2) {
        for (int x = left + 1; x < left + kSide - 1; x += 2) {
          const auto a = around(one, x, y), b = around(two, x, y);
          for (std::size_t k = 0; k < 3; ++k) apart += std::abs(a[k] - b[k]);
        }
      }
      EXPECT_LE(apart, 16 * 3 * (kSide / 2) * (kSide / 2)) << what << " at " << left << ", " << top;
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
