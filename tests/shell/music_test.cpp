// The music as a listener hears it: which theme starts in which second.
#include <gtest/gtest.h>

#include <utility>

#include "shell/script_runner.h"

namespace {

using script::Play;
using Heard = std::vector<std::pair<int, int>>;  // second, theme

constexpr const char* kGame = "open-play; click Command5; sounds";

/// Lets seconds pass and notes each theme that is started. Every start is the same three commands.
Heard listen(Play& play, int seconds) {
  Heard heard;
  for (int second = 1; second <= seconds; ++second) {
    play.run("advance 1000");
    const std::string log = play("sounds");
    if (log == "ok []") continue;
    const char theme = log[std::min(log.find("theme") + 5, log.size() - 1)];
    EXPECT_EQ(log, std::string(R"(ok ["close canyon","Open \"F\\theme)") + theme +
                       R"(.Mid\" type sequencer alias canyon","play canyon"])");
    heard.push_back({second, theme - '0'});
  }
  return heard;
}

TEST(Music, PlaysAllThemesInTurnAndStartsOver) {
  Play play(kGame);
  const Heard heard{{1, 1},   {83, 2},  {208, 3},  {371, 4},  {525, 5}, {659, 1},
                    {741, 2}, {866, 3}, {1029, 4}, {1183, 5}, {1317, 1}};
  EXPECT_EQ(listen(play, 2 * 658 + 1), heard);
}

TEST(Music, RepeatsOneThemeByItsOwnLength) {
  Play play(kGame);
  const int lengths[] = {83, 126, 165, 154, 130};
  for (int track = 1; track <= 5; ++track) {
    const int length = lengths[track - 1];
    play.run("advance 40000; sounds; choose Combo1 Track " + std::to_string(track));
    EXPECT_EQ(listen(play, 2 * length + 1),
              (Heard{{1, track}, {1 + length, track}, {1 + 2 * length, track}}));
  }
}

TEST(Music, LetsThePlayerLeaveWhileAThemeIsBeingOpened) {
  Play play(kGame);
  bool left = false;
  play.session().services().letEventsIn = [&] {
    if (!std::exchange(left, true)) play.run("menu; click mainnew");
  };
  play.run("advance 1000");
  EXPECT_TRUE(left);
  play.run("screen => firstmenu; advance 5000; click stopen, opengo; advance 500; musicAuto=0");
}

}  // namespace
