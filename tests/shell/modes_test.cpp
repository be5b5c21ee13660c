// Nothing of one game reaches the next.
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

#include "shell/script_runner.h"
#include "store/record.h"

namespace {

using script::Play;

struct Mode {
  const char* name;
  const char* start;  // from the main panel of the menu
  const char* leave;  // back to it
};
constexpr const char* kQuit = "click gmmenu\nclick Command19";
const Mode kModes[] = {
    {"campaign", "click mainnew\nclick stcampaign\nclick Label6 0\nclick Command14", kQuit},
    {"puzzle", "click mainnew\nclick stpuzzle\nclick Label20 3", kQuit},
    {"open play", "click mainnew\nclick stopen\nclick opengo", kQuit},
    {"demonstration", "click mainhelp", "click Label17"},
    {"saved game", "click mainload\nadvance 500\nchoose File1 town.sav\nclick cmdload", kQuit},
};

/// What a player could tell the first month by: the whole state as a saved game would hold it, and the
/// picture. The ground of a saved game is left out: it is generated again at every load, and rolled twice
/// when the menu still remembers a new map from the game before.
std::string firstMonth(Play& play, const Mode& mode) {
  play.run("pointer 300 590\nseed 7");
  play.run(mode.start);
  play.run("pointer 300 590\nadvance 500\nadvance 32000");
  std::string digest;
  shell::Program& program = play.session().program();
  store::composeRecord(*program.screen()->game(), program.values(), digest);
  if (mode.name == std::string_view("saved game")) return digest;
  program.paint();
  const platform::Surface& picture = program.framebuffer();
  for (int y = 0; y < picture.height(); ++y) {
    digest.append(reinterpret_cast<const char*>(picture.row(y)),
                  static_cast<std::size_t>(picture.width()) * 3);
  }
  return digest;
}

/// A folder with a saved town of every kind of thing, made in open play.
void saveTown(Play& play) {
  play.run("click mainnew\nclick stopen\nclick Check2\nclick opengo\nadvance 500");
  play.run("press @15,15\npress @15,16\nclick Command1 0\npress @16,15\nclick Command1 8");
  play.run("press @11,11\nset gold 5000\nset population 30\nadvance 40000\nclick gmmenu");
  play.run("click savegame\nclick txtsavename\ntype town\nclick cmdsave\nclick gmmenu");
  play.run("click Command19");
}

TEST(Modes, BeginAfterAnyOtherAsAfterAFreshStart) {
  for (const Mode& mode : kModes) {
    Play fresh;
    saveTown(fresh);
    fresh.restart();
    const std::string expected = firstMonth(fresh, mode);
    for (const Mode& before : kModes) {
      Play play;
      play.write("town.sav", fresh.file("town.sav"));
      firstMonth(play, before);
      // A view, a panel and a tool are left as they are when the game is left.
      if (before.leave == kQuit) {
        play.run("click building\nclick Command1 8\nclick seer 2\nclick Statusreport");
        play.run("click statusclose");
      }
      play.run(before.leave);
      EXPECT_TRUE(firstMonth(play, mode) == expected) << mode.name << " after " << before.name;
    }
  }
}

long residentPages() {
  long total = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident;
}

TEST(Modes, AThousandGamesLeaveNothingBehind) {
#ifdef VELLMORAN_CHECK_INDICES
  constexpr int kGames = 100;  // the leak check of the sanitizers looks at these
#else
  constexpr int kGames = 1000;
#endif
  Play play;
  long early = 0;
  for (int n = 0; n < kGames; ++n) {
    const Mode& mode = kModes[n % 4];
    play.run(mode.start);
    play.run("advance 1500");
    play.run(mode.leave);
    if (n == kGames / 10) early = residentPages();
  }
  EXPECT_EQ(play("screen"), "ok firstmenu");
#ifndef VELLMORAN_CHECK_INDICES
  EXPECT_LT((residentPages() - early) * sysconf(_SC_PAGESIZE), 1 << 20);
#else
  EXPECT_GT(early, 0);
#endif
}

}  // namespace
