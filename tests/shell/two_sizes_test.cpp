// At twice the size every picture, letter and line is where it is at the plain size.
#include <gtest/gtest.h>

#include <algorithm>
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

const Surface& shown(Play& play) {
  play.program().paint();
  return play.program().framebuffer();
}

// How bright three by three units around each unit are, so that finer blades and letters weigh little:
// 256 times 0 to 255. The rim stays dark.
std::vector<int> softened(const Surface& picture) {
  const int s = picture.scale();
  std::vector<int> sharp(kWidth * kHeight), soft(kWidth * kHeight);
  for (int y = 0; y < kHeight * s; ++y) {
    const std::uint8_t* p = picture.row(y);
    int* unit = &sharp[kWidth * (y / s)];
    for (int x = 0; x < kWidth; ++x, ++unit) {
      for (int i = 0; i < s; ++i, p += 3) *unit += 77 * p[0] + 150 * p[1] + 29 * p[2];
    }
  }
  for (int y = 1; y < kHeight - 1; ++y) {
    const int* above = &sharp[kWidth * (y - 1)];
    int before = 0, here = 0;
    for (int x = 0; x < kWidth; ++x, ++above) {
      const int next = above[0] + above[kWidth] + above[2 * kWidth];
      if (x > 1) soft[kWidth * y + x - 1] = (before + here + next) / (9 * s * s);
      before = here;
      here = next;
    }
  }
  return soft;
}

// In no square of 12 units may the brightness differ by more than 19 of 255 on average, and nowhere may
// the two agree better, by 1 or more, when one is moved by two units. Ripe fields, whose ears are finer
// at scale 2, differ by 17 and fit a move better by .8; a small label or plate that is two units off
// its place, by 5 and more.
void expectAlike(const Surface& one, const Surface& two, const std::string& what) {
  constexpr int kSide = 12;
  constexpr int kRim = 3;
  ASSERT_EQ(one.scale(), 1);
  ASSERT_EQ(two.scale(), 2);
  const auto a = softened(one), b = softened(two);
  const auto apart = [&](int left, int top, int dx, int dy) {
    int sum = 0;
    for (int y = top; y < top + kSide; ++y) {
      const int* p = &a[kWidth * y + left];
      const int* q = &b[kWidth * (y + dy) + left + dx];
      for (int x = 0; x < kSide; ++x) sum += std::abs(p[x] - q[x]);
    }
    return static_cast<double>(sum) / (256 * kSide * kSide);
  };
  // The last squares of a row and a column overlap their neighbours.
  for (int y = kRim; y < kHeight - kRim; y += kSide) {
    for (int x = kRim; x < kWidth - kRim; x += kSide) {
      const int left = std::min(x, kWidth - kRim - kSide),
                top = std::min(y, kHeight - kRim - kSide);
      const double inPlace = apart(left, top, 0, 0);
      EXPECT_LE(inPlace, 19) << what << " at " << left << ", " << top;
      if (inPlace <= 1) continue;
      for (const auto& [dx, dy] : {std::pair{2, 0}, {-2, 0}, {0, 2}, {0, -2}}) {
        EXPECT_LE(inPlace, apart(left, top, dx, dy) + 1)
            << what << " at " << left << ", " << top << " moved by " << dx << ", " << dy;
      }
    }
  }
}

TEST(TwoSizes, ShowTheSameInTheSamePlace) {
  Play plain("", 1), large("", 2);
  for (const std::string step : {
           "seed 4; hover mainload; advance 100",
           "click maincredits",
           "click Command18, mainnew, stpuzzle",
           "click Command23, stcampaign; hover Label6(1); advance 50",
           "click Label6(0)",
           "click Command14; advance 500; pointer 400 400; advance 500",
           "set gold=20000; set population=1100; advance 1000; pointer 748 362; advance 100",
           "click Command21, Statusreport; advance 100",
           "click statusclose, Command5; advance 100; click Command7, gmmenu, savegame; advance "
           "100",
           "click Cancelsave, seer(1); advance 500",
       }) {
    plain.run(step);
    large.run(step);
    expectAlike(shown(plain), shown(large), step);
  }
}

// Cities of recorded plays, after so many lines of them.
TEST(TwoSizes, ShowTheSameCities) {
  const struct {
    const char* play;
    int lines;
  } cities[] = {
      {"campaign.txt", 270}, {"campaign.txt", 1600}, {"open_play.txt", 400}, {"puzzle05.txt", 40}};
  for (const auto& [name, lines] : cities) {
    Play recorded;
    std::ifstream file(VELLMORAN_SOURCE_DIR "/docs/solutions/" + std::string(name));
    std::string line;
    for (int left = lines; left > 0 && std::getline(file, line); --left) {
      if (!line.empty() && line[0] != '#') recorded(line);
    }
    recorded.run("save city");
    Play plain("", 1), large("", 2);
    for (Play* play : {&plain, &large}) {
      play->write("city.sav", recorded.file("city.sav"));
      play->run("seed 4; open-play; load city; advance 4000");
    }
    expectAlike(shown(plain), shown(large), name + std::string(" ") + std::to_string(lines));
  }
}

}  // namespace
