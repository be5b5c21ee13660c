// Saved games: names that no file can have, files that are no games, and the city that is kept when the
// window or the page goes.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/pixels.h"
#include "platform/timers.h"
#include "shell/script_runner.h"
#include "shell/unsaved_city.h"
#include "store/record.h"

namespace {

using script::Play;

constexpr const char* kTown = "open-play; press @15,15 @15,16; residence @16,15";

TEST(SavedGames, SayWhatIsWrongWithANameThatNoFileCanHave) {
  Play play(kTown);
  for (const std::string& name : {std::string(300, 'x'), std::string("no/where")}) {
    play.run("save " + name);
    EXPECT_TRUE(play("box").starts_with(R"(ok {"title":"Save Error","text":")")) << play("box");
    EXPECT_NE(play("box").find(name.substr(name.find('/') + 1, 100)), std::string::npos);
    play.run("click OK; shown framesave; click Cancelsave, Command17");
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(play.folder()), {}),
            1);  // config.dat
}

/// Everything of a running game that a load could have changed: numbers, grids, timers, controls,
/// the picture of the map.
std::string digest(Play& play) {
  shell::Screen& screen = *play.program().screen();
  std::string all;
  store::composeRecord(play.state(), play.program().values(), all);
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
      all += std::to_string(play.state().tileImage(x, y)) + " ";
    }
  }
  const platform::Surface& map = play.map();
  for (int y = 0; y < map.height(); ++y) {
    all.append(reinterpret_cast<const char*>(map.row(y)),
               static_cast<std::size_t>(map.width()) * 3);
  }
  return all;
}

TEST(SavedGames, ThatCannotBeReadLeaveTheRunningGameUntouched) {
  Play play(kTown);
  play.run("save good");
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
    play.run(fromMenu ? "click mainload; advance 500" : "click gmmenu, ldgame");
    const auto refuses = [&] {
      const std::string before = digest(play);
      play.run("click cmdload");
      EXPECT_TRUE(
          play("box").starts_with(R"(ok {"title":"Error loading saved game","text":"bad.sav: )"))
          << play("box");
      play.run("click OK");
      EXPECT_TRUE(digest(play) == before);
      play.run("shown frameload");
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
    play.run("choose File1 good.sav; set gold=5; click cmdload; advance 500; gold=580; menu");
  }
}

TEST(SavedGames, AreLoadedOnABareScreenThatTakesNoPress) {
  Play play(kTown);
  play.run("farm @10,10; save town");
  const auto waits = [&play](int milliseconds) {
    // Presses where the town was, and a field that grows.
    play.run("press 100 300; set tickOfMonth=10; advance " + std::to_string(milliseconds));
    EXPECT_TRUE(same(play.map(), platform::Surface(play.map().width(), play.map().height())));
    play.run("haber: visible=false");
  };
  play.run("advance 3600; click gmmenu, ldgame; choose File1 town.sav; click cmdload");
  waits(499);
  play.run("advance 1; tileCode(16,15)=11; menu; click mainload; advance 500");
  waits(5000);
  play.run("choose File1 town.sav; click cmdload");
  waits(499);
}

bool keeps(script::Play& play) {
  return shell::keepUnsavedCity(play.program());
}

TEST(UnsavedCity, IsTheOpenCityAndAnOrdinarySavedGame) {
  script::Play play("open-play");
  play.run("press @15,15 @15,16; advance 3000");
  ASSERT_TRUE(keeps(play));
  play.run("press @15,17");
  ASSERT_TRUE(keeps(play));
  const std::string city = play("grid tileCode");
  play.restart();
  play.run("click mainload; advance 500; choose File1 " + std::string(shell::kUnsavedCity));
  play.run("click cmdload; advance 600");
  EXPECT_EQ(play("grid tileCode"), city);
}

TEST(UnsavedCity, IsNoneInTheMenuTheDemonstrationAndTheLoadPanel) {
  script::Play play;
  EXPECT_FALSE(keeps(play));
  play.run("click mainload; advance 500");
  EXPECT_FALSE(keeps(play));
  play.restart();
  play.run("click mainhelp; advance 9000");
  EXPECT_FALSE(keeps(play));
  EXPECT_EQ(play.file(shell::kUnsavedCity), "");
}

}  // namespace
