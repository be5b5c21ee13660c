// The menu: what lights under the pointer, what is marked as solved, and the difficulty of open play.
#include <gtest/gtest.h>

#include "core/number_text.h"
#include "shell/script_runner.h"

namespace {

using script::Play;

struct Row {
  const char* name;
  int top, bottom;  // of its band on the screen, inclusive
};

TEST(Menu, LightsARowWithinItsBandAndSoundsOnEnteringIt) {
  const std::vector<Row> panels[] = {{{"mainnew", 241, 264},
                                      {"mainload", 281, 304},
                                      {"mainhelp", 321, 344},
                                      {"maincredits", 361, 384},
                                      {"mainquit", 401, 424}},
                                     {{"stcampaign", 169, 189},
                                      {"stpuzzle", 209, 229},
                                      {"stopen", 249, 269},
                                      {"stback", 409, 429}}};
  Play play;
  for (const std::vector<Row>& rows : panels) {
    const auto litAt = [&](int x, int y) {
      play.run("pointer " + std::to_string(x) + " " + std::to_string(y) + "; advance 30");
      std::string lit;
      for (const Row& row : rows) {
        if (play.control(row.name).fore == platform::kYellow) lit += row.name;
      }
      return lit;
    };
    for (const Row& row : rows) {
      litAt(10, 10);
      play("sounds");
      EXPECT_EQ(litAt(330, row.top), row.name);
      EXPECT_EQ(play("sounds"), R"(ok ["sound2.wav"])");
      EXPECT_EQ(litAt(470, row.bottom), row.name);
      EXPECT_EQ(play("sounds"), "ok []");
      for (const auto& [x, y] : {std::pair{329, row.top},
                                 {471, row.bottom},
                                 {400, row.top - 1},
                                 {400, row.bottom + 1}}) {
        EXPECT_EQ(litAt(x, y), "") << x << " " << y;
      }
      play.run("set gSoundOn 0");
      EXPECT_EQ(litAt(400, row.top), row.name);
      EXPECT_EQ(play("sounds"), "ok []");
      play.run("set gSoundOn 1");
    }
    if (play.control("main").visible) play.run("click mainnew");
  }
}

TEST(Menu, MarksSolvedPuzzles) {
  Play play("#write config.dat 1,0,0,1,0,0,0,0,0,0,0,0\nclick mainnew, stpuzzle");
  EXPECT_EQ(play.control("Picture11").image, play.control("Picture20").image);
  EXPECT_EQ(play.control("Picture12").image, play.control("Picture21").image);
}

TEST(OpenPlay, ReckonsTheDifficultyOfAllItsForms) {
  constexpr const char* kSizes[] = {"Check3", "Check1", "Check2"};
  constexpr const char* kLands[] = {"Check4", "Check5", "Check6"};
  constexpr const char* kMoneys[] = {"Check7", "Check8", "Check9"};
  constexpr double kDifficulty[9][3] = {
      {168, 140, 119},  {210, 175, 148.75}, {283.5, 236.25, 200.8125},
      {96, 80, 68},     {120, 100, 85},     {162, 135, 114.75},
      {62.4, 52, 44.2}, {78, 65, 55.25},    {105.3, 87.75, 74.5875}};
  Play play("click mainnew, stopen");
  EXPECT_EQ(play.control("openplaydiff").text, "Overall difficulty:100%");
  const auto check = [&](const char* box) {
    if (!play.control(box).checked) play.run(std::string("click ") + box);
  };
  for (int n = 0; n < 27; ++n) {
    // Each click changes the figure, so the last of the three is new.
    check(kSizes[n / 9]);
    check(kLands[n / 3 % 3]);
    check(kMoneys[n % 3]);
    const std::string figure(core::NumberText(kDifficulty[n / 3][n % 3]).view());
    EXPECT_EQ(play.control("openplaydiff").text, "Overall difficulty:" + figure + "%");
    int checked = 0;
    for (const auto& group : {kSizes, kLands, kMoneys}) {
      for (int box = 0; box < 3; ++box) checked += play.control(group[box]).checked;
    }
    EXPECT_EQ(checked, 3);
  }
}

TEST(Menu, MissionsThatAreStillClosedCarryALock) {
  Play play("#write config.dat 4,0,0,0,0,0,0,0,0,0,0,0\nclick mainnew, stcampaign");
  const auto locks = [&play] {
    std::string row;
    for (int k = 0; k < 10; ++k) row += play.control("Label6", k).image != nullptr ? 'x' : '-';
    return row;
  };
  EXPECT_EQ(locks(), "----xxxxxx");
  play.run("click Label6(3); set gMission=11; click Command11");
  EXPECT_EQ(locks(), "----------");
}

}  // namespace
