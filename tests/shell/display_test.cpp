// The display's size: taken over at every coming of the menu, given back at the end.
#include <gtest/gtest.h>

#include "shell/script_runner.h"

namespace {

using script::Play;

TEST(Display, GetsBackTheSizeOfTheVeryStart) {
  Play play;
  for (int games = 0; games < 3; ++games) {
    EXPECT_EQ(play.session().display().size().width, 800);
    play.run("click mainhelp; advance 500; click Label16");
  }
  play.run("gScreenW=1920; click mainquit; screen => none");
  EXPECT_EQ(play.session().display().size().width, 1920);
  EXPECT_EQ(play.session().display().size().height, 1080);
  EXPECT_EQ(play.session().display().lastMessage(), "");
  EXPECT_EQ(play.program().exitStatus(), 0);
}

TEST(Display, RefusedEndsTheProgramBeforeAnythingIsRead) {
  Play play("click mainhelp; advance 500");
  play.write("config.dat", "7,0,0,0,0,0,0,0,0,0,0,0\r\n");
  play.session().display().refuse(-1);
  play.run("click Label16; screen => none; gMission=15");
  EXPECT_EQ(play.program().exitStatus(), 1);
  EXPECT_EQ(play.session().display().lastMessage(),
            "Error: Vellmoran can not change resolution,be sure your system supports 800x600x16 "
            "resolution,if it does,change resolution manually before launching Vellmoran ");
}

TEST(Display, NotGivenBackSaysSoAndEndsTheProgram) {
  for (const int result : {1, -1, 2}) {
    Play play;
    play.session().display().refuse(result);
    play.run("click mainquit; screen => none");
    EXPECT_EQ(play.program().exitStatus(), 1);
    EXPECT_EQ(play.session().display().lastMessage(),
              std::string(result == 1 ? "Error: " : "Error:  ") +
                  "Vellmoran can not restore your original screen resolution,please change it "
                  "manually ");
  }
}

TEST(Pages, TurnWithEveryScreenAndEveryPanelOfTheMenu) {
  Play play;
  int page = play.program().pages();
  for (const char* step :
       {"click mainnew", "click stopen", "click opengo", "advance 500", "menu"}) {
    play.run(step);
    EXPECT_GT(play.program().pages(), page) << step;
    page = play.program().pages();
  }
  play.run("click maincredits; pointer 700 500; advance 1000; pointer 400 300");
  EXPECT_EQ(play.program().pages(), page + 1);
}

TEST(EdgeScrolling, WaitsWhileAWindowForbidsIt) {
  Play play("click mainhelp; advance 500; pointer 0 300");
  play.program().desk().setEdgeScrolling(false);
  play.run("advance 100; scrollX=0");
  play.program().desk().setEdgeScrolling(true);
  play.run("advance 50; scrollX=-128");
}

}  // namespace
