// The panels of saved games: names that no file can have, and files that are no games.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/pixels.h"
#include "platform/timers.h"
#include "play/game_controls.h"
#include "shell/script_runner.h"
#include "store/record.h"

namespace {

using script::Play;
namespace ui = play::game_control;

platform::Form& form(Play& play) {
  return play.session().program().screen()->form();
}

void openTown(Play& play) {
  play.run("click mainnew\nclick stopen\nclick opengo\nadvance 500");
  play.run("press @15,15\npress @15,16\nclick Command1 0\npress @16,15");
}

void save(Play& play, const std::string& name) {
  play.run("click gmmenu\nclick savegame\nclick txtsavename");
  form(play)[ui::txtsavename].text.clear();
  play.run("type " + name + "\nclick cmdsave");
}

TEST(SavedGames, SayWhatIsWrongWithANameThatNoFileCanHave) {
  Play play;
  openTown(play);
  for (const std::string& name : {std::string(300, 'x'), std::string("no/where")}) {
    save(play, name);
    EXPECT_TRUE(play("box").starts_with(R"(ok {"title":"Save Error","text":")")) << play("box");
    EXPECT_NE(play("box").find(name.substr(name.find('/') + 1, 100)), std::string::npos);
    play.run("click OK");
    EXPECT_TRUE(form(play)[ui::framesave].visible);
    play.run("click Cancelsave\nclick Command17");
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(play.folder()), {}),
            1);  // config.dat
}

/// Everything of a running game that a load could have changed: numbers, grids, timers, controls,
/// the picture of the map.
std::string digest(Play& play) {
  shell::Screen& screen = *play.session().program().screen();
  std::string all;
  store::composeRecord(*screen.game(), play.session().program().values(), all);
  for (int id = 0; id < screen.timers().count(); ++id)
    all += screen.timers().enabled(id) ? '1' : '0';
  for (int id = 0; id < screen.form().count(); ++id) {
    const platform::Control& control = screen.form()[id];
    all += control.visible ? '1' : '0';
    all += std::to_string(control.place.left) + " " + std::to_string(control.place.top);
    all += control.text.view();
  }
  for (int x = 0; x <= core::kLastCell; ++x) {
    for (int y = 0; y <= core::kLastCell; ++y) {
      all += std::to_string(screen.game()->tileImage(x, y)) + " ";
    }
  }
  const platform::Surface& map = screen.canvas()->surface();
  for (int y = 0; y < map.height(); ++y) {
    all.append(reinterpret_cast<const char*>(map.row(y)),
               static_cast<std::size_t>(map.width()) * 3);
  }
  return all;
}

TEST(SavedGames, ThatCannotBeReadLeaveTheRunningGameUntouched) {
  Play play;
  openTown(play);
  save(play, "good");
  const std::string good = play.file("good.sav");
  std::string wrongMission = good;
  wrongMission.replace(0, 2, "12");
  play.write("bad.sav", "");
  const std::string bads[] = {"",
                              good.substr(0, good.size() / 2),
                              good.substr(0, good.size() - 3),
                              good + "0\r\n",
                              "nan" + good.substr(2),
                              wrongMission};
  // In a running game, and with the load panel opened from the menu.
  for (const bool fromMenu : {false, true}) {
    play.run(fromMenu ? "click mainload\nadvance 500" : "click gmmenu\nclick ldgame");
    const auto refuses = [&] {
      const std::string before = digest(play);
      play.run("click cmdload");
      EXPECT_TRUE(
          play("box").starts_with(R"(ok {"title":"Error loading saved game","text":"bad.sav: )"))
          << play("box");
      play.run("click OK");
      EXPECT_TRUE(digest(play) == before);
      EXPECT_TRUE(form(play)[ui::frameload].visible);
    };
    play.run("choose File1 bad.sav");
    for (const std::string& bad : bads) {
      play.write("bad.sav", bad);
      refuses();
    }
    std::filesystem::remove(play.folder() + "/bad.sav");
    refuses();
    std::filesystem::create_directory(play.folder() + "/bad.sav");
    refuses();
    std::filesystem::remove(play.folder() + "/bad.sav");
    play.write("bad.sav", "");
    play.run("choose File1 good.sav\nset gold 5\nclick cmdload\nadvance 500");
    EXPECT_EQ(play("get gold"), "ok 580");
    play.run("click gmmenu\nclick Command19");
  }
}

TEST(SavedGames, AreLoadedOnABareScreenThatIsDeaf) {
  Play play;
  openTown(play);
  play.run("click Command1 8\npress @10,10");
  save(play, "town");
  const auto waits = [&play](int milliseconds) {
    // Presses where the town was, and a field that grows.
    play.run("press 100 300\nset tickOfMonth 10\nadvance " + std::to_string(milliseconds));
    const platform::Surface& map = play.session().program().screen()->canvas()->surface();
    EXPECT_TRUE(same(map, platform::Surface(map.width(), map.height())));
    EXPECT_FALSE(form(play)[ui::haber].visible);
  };
  play.run("advance 3600\nclick gmmenu\nclick ldgame\nchoose File1 town.sav\nclick cmdload");
  waits(499);
  play.run("advance 1");
  EXPECT_EQ(play("get tileCode 16 15"), "ok 11");
  play.run("click gmmenu\nclick Command19\nclick mainload\nadvance 500");
  waits(5000);
  play.run("choose File1 town.sav\nclick cmdload");
  waits(499);
}

}  // namespace
