// The display's size: taken over at every coming of the menu, given back at the end.
#include <gtest/gtest.h>

#include "shell/script_runner.h"

namespace {

using script::Play;

TEST(Display, GetsBackTheSizeOfTheVeryStart) {
  Play play;
  for (int games = 0; games < 3; ++games) {
    EXPECT_EQ(play.session().display().size().width, 800);
    play.run("click mainhelp\nadvance 500\nclick Label16");
  }
  EXPECT_EQ(play("get gScreenW"), "ok 1920");
  play.run("click mainquit");
  EXPECT_EQ(play("screen"), "ok none");
  EXPECT_EQ(play.session().display().size().width, 1920);
  EXPECT_EQ(play.session().display().size().height, 1080);
  EXPECT_EQ(play.session().display().lastMessage(), "");
  EXPECT_EQ(play.session().program().exitStatus(), 0);
}

TEST(Display, RefusedEndsTheProgramBeforeAnythingIsRead) {
  Play play;
  play.run("click mainhelp\nadvance 500");
  play.write("config.dat", "7,0,0,0,0,0,0,0,0,0,0,0\r\n");
  play.session().display().refuse(-1);
  play.run("click Label16");
  EXPECT_EQ(play("screen"), "ok none");
  EXPECT_EQ(play("get gMission"), "ok 15");
  EXPECT_EQ(play.session().program().exitStatus(), 1);
  EXPECT_EQ(play.session().display().lastMessage(),
            "Error: Vellmoran can not change resolution,be sure your system supports 800x600x16 "
            "resolution,if it does,change resolution manually before launching Vellmoran ");
}

TEST(Display, NotGivenBackSaysSoAndEndsTheProgram) {
  for (const int result : {1, -1, 2}) {
    Play play;
    play.session().display().refuse(result);
    play.run("click mainquit");
    EXPECT_EQ(play("screen"), "ok none");
    EXPECT_EQ(play.session().program().exitStatus(), 1);
    EXPECT_EQ(play.session().display().lastMessage(),
              std::string(result == 1 ? "Error: " : "Error:  ") +
                  "Vellmoran can not restore your original screen resolution,please change it "
                  "manually ");
  }
}

TEST(Pages, TurnWithEveryScreenAndEveryPanelOfTheMenu) {
  Play play;
  int page = play.session().program().pages();
  for (const char* step : {"click mainnew", "click stopen", "click opengo", "advance 500",
                           "click gmmenu\nclick Command19"}) {
    play.run(step);
    EXPECT_GT(play.session().program().pages(), page) << step;
    page = play.session().program().pages();
  }
  play.run("click maincredits\npointer 700 500\nadvance 1000\npointer 400 300");
  EXPECT_EQ(play.session().program().pages(), page + 1);
}

TEST(EdgeScrolling, WaitsWhileAWindowForbidsIt) {
  Play play;
  play.run("click mainhelp\nadvance 500\npointer 0 300");
  play.session().program().desk().setEdgeScrolling(false);
  play.run("advance 100");
  EXPECT_EQ(play("get scrollX"), "ok 0");
  play.session().program().desk().setEdgeScrolling(true);
  play.run("advance 50");
  EXPECT_EQ(play("get scrollX"), "ok -128");
}

}  // namespace
