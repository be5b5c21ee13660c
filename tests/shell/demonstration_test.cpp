// The demonstration, watched to its end.
#include <gtest/gtest.h>

#include "core/vocabulary.h"
#include "play/press.h"
#include "shell/game_screen.h"
#include "shell/script_runner.h"

namespace {

using script::Play;

// r road, h residence, m market, s school, c church, d doctor, f farm: cells 9..24 by 1..21.
constexpr const char* kCity[] = {
    ".....fffffffff..", ".....fffffffff..", ".....fffffffff..", ".....fffffffff..",
    ".....fffffffff..", ".....fffffffff..", "................", "...hhhhhhhhhh...",
    "...hhhhhhhhhh...", ".rrrrrrrrrrrrrr.", ".rhhhhrssrhhhhr.", ".rhhhhrssrhhhhr.",
    ".rhhhhrmmrhhhhrd", ".rhhhhrmmrhhhhr.", "drhhhhrccrhhhhr.", ".rhhhhrccrhhhhr.",
    ".rhhhhrssrhhhhr.", ".rhhhhrssrhhhhr.", ".rrrrrrrrrrrrrr.", "...hhhhhhhhhh...",
    "...hhhhhhhhhh...",
};

char letterOf(int code) {
  if (code == 0) return '.';
  if (code == 6) return 'd';
  return code == 7 ? 'r' : "?hms?c??f"[code / 10];
}

TEST(Demonstration, BuildsItsCitySilentlyAndGoesBackToTheMenu) {
  Play play("click mainhelp; advance 500; sounds");
  core::GameState* game = &play.state();
  // The pace of the script is kept, and no notice outlives the next second.
  play.run("gold=1000; set ticksPerMonth=16 gSoundOn=1; advance 1000");
  play.run("ticksPerMonth=25 gSoundOn=0 tileCode(18,10)=7 tileCode(18,11)=0");

  struct Moment {
    int step, x, y;
  };
  for (const auto& [step, x, y] :
       {Moment{10, 18, 19}, {14, 19, 17}, {24, 23, 19},  {32, 23, 18}, {36, 21, 17},
        {39, 20, 1},        {40, 16, 13}, {49, 15, 18},  {53, 13, 17}, {59, 10, 19},
        {64, 10, 10},       {72, 10, 18}, {74, 16, 15},  {79, 11, 17}, {80, 16, 11},
        {82, 17, 4},        {84, 17, 19}, {86, 17, 10},  {91, 20, 20}, {96, 20, 8},
        {97, 24, 13},       {100, 9, 15}, {103, 16, 17}, {105, 20, 4}}) {
    play.run("advance " + std::to_string(1000 * (step - game->demoStep) - 1));
    EXPECT_EQ(game->tileCode(x, y), 0) << step;
    play.run("advance 1");
    EXPECT_NE(game->tileCode(x, y), 0) << step;
  }
  play.run("advance 10000; demoStep=115; haber: text=\"End of demonstration\"; advance 19999");
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      const bool inside = x >= 9 && x <= 24 && y >= 1 && y <= 21;
      EXPECT_EQ(letterOf(game->tileCode(x, y)), inside ? kCity[y - 1][x - 9] : '.')
          << x << "," << y;
    }
  }
  EXPECT_EQ(play("sounds").find("wav"), std::string::npos);
  play.run("toolUnlocked(1)=0; advance 1; screen => firstmenu; sounds => [\"close canyon\"]");
}

TEST(Demonstration, LeavesAResidenceUnservedThatAPlayersPressWouldServe) {
  // The road touches a cell that the market does not cover, beside one that it does.
  Play game("open-play; press @10,16 @11,16 @12,16 @13,16 @14,16 @15,16 @16,16 @17,16 @17,15");
  game.run("market @10,14; click Command1(0)");
  auto& screen = static_cast<shell::GameScreen&>(*game.program().screen());
  play::useTool(screen.scene(), core::kResidenceTool, {16, 13}, play::User::demonstration);
  game.run("tileCode(16,13)=11 cellService(1,16,13)=0");
  game.run("demolish @16,13; residence @16,13; cellService(1,16,13)=1");
}

}  // namespace
