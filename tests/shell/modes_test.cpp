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
constexpr const char* kQuit = "menu";
const Mode kModes[] = {
    {"campaign", "click mainnew, stcampaign, Label6(0), Command14", kQuit},
    {"puzzle", "click mainnew, stpuzzle, Label20(3)", kQuit},
    {"open play", "click mainnew, stopen, opengo", kQuit},
    {"demonstration", "click mainhelp", "click Label17"},
    {"saved game", "click mainload; advance 500; choose File1 town.sav; click cmdload", kQuit},
};

/// What a player could tell the first month by: the whole state as a saved game would hold it, and the
/// picture. The ground of a saved game is left out: it is generated again at every load, and rolled twice
/// when the menu still remembers a new map from the game before.
std::string firstMonth(Play& play, const Mode& mode) {
  play.run("pointer 300 590; seed 7\n" + std::string(mode.start));
  play.run("pointer 300 590; advance 500; advance 32000");
  std::string digest;
  shell::Program& program = play.program();
  store::composeRecord(play.state(), program.values(), digest);
  if (mode.name == std::string_view("saved game")) return digest;
  program.paint();
  const platform::Surface& picture = program.framebuffer();
  for (int y = 0; y < picture.height(); ++y) {
    digest.append(reinterpret_cast<const char*>(picture.row(y)),
                  static_cast<std::size_t>(picture.width()) * 3);
  }
  return digest;
}

TEST(Modes, BeginAfterAnyOtherAsAfterAFreshStart) {
  for (const Mode& mode : kModes) {
    // A town of every kind of thing.
    Play fresh("click mainnew, stopen, Check2, opengo; advance 500; press @15,15 @15,16");
    fresh.run(
        "residence @16,15; farm @11,11; set gold=5000 population=30; advance 40000; save town");
    fresh.restart();
    const std::string expected = firstMonth(fresh, mode);
    for (const Mode& before : kModes) {
      Play play;
      play.write("town.sav", fresh.file("town.sav"));
      firstMonth(play, before);
      // A view, a panel and a tool are left as they are when the game is left.
      if (before.leave == kQuit) {
        play.run("click building, Command1(8), seer(2), Statusreport, statusclose");
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
  play.run("screen => firstmenu");
#ifndef VELLMORAN_CHECK_INDICES
  EXPECT_LT((residentPages() - early) * sysconf(_SC_PAGESIZE), 1 << 20);
#else
  EXPECT_GT(early, 0);
#endif
}

}  // namespace
