// The program around the game: the display that it takes and gives back, pages, edges, and what is read
// behind the first picture of the menu.
#include <gtest/gtest.h>

#include <filesystem>

#include "driver/commands.h"
#include "shell/script_runner.h"
#include "support/temp_folder.h"

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

namespace fs = std::filesystem;

/// A program that has read what its menu shows and no more.
class Loading : public testing::Test {
 protected:
  Loading() {
    const std::string whole = VELLMORAN_BUILD_DIR "/data";
    fs::create_symlink(whole + "/font.otf", data_ / "font.otf");
    fs::create_directory(data_ / "pictures");
    for (const char* folder : {"panel", "pair", "tile", "mask"}) {
      fs::create_symlink(whole + "/pictures/" + folder, data_ / "pictures/" + folder);
    }
    std::string error;
    EXPECT_TRUE(assets_->open(data_.path(), error)) << error;
    session_ = driver::Session::start(home_.path(), assets_, error);
  }
  ~Loading() override {
    session_.reset();
    fs::current_path(before_);
  }
  std::string openDemonstration() {
    driver::run(*session_, "click mainhelp");
    driver::run(*session_, "advance 500");
    return driver::run(*session_, "screen");
  }

  fs::path before_ = fs::current_path();
  support::TempFolder data_, home_;
  std::shared_ptr<shell::Assets> assets_ = std::make_shared<shell::Assets>();
  std::unique_ptr<driver::Session> session_;
};

TEST_F(Loading, GoesOnPieceByPieceWhileTheMenuWaits) {
  EXPECT_FALSE(assets_->complete());
  while (session_->program().readAhead()) {
  }
  EXPECT_TRUE(assets_->complete());
  EXPECT_EQ(openDemonstration(), "ok frmMain");
}

TEST_F(Loading, IsOverBeforeAGameOpens) {
  EXPECT_EQ(openDemonstration(), "ok frmMain");
  EXPECT_TRUE(assets_->complete());
}

TEST_F(Loading, EndsTheProgramWithAMessageWhenAPictureIsMissing) {
  fs::remove(data_ / "pictures/tile");
  EXPECT_EQ(openDemonstration(), "ok none");
  EXPECT_EQ(session_->program().exitStatus(), 1);
  EXPECT_NE(session_->display().lastMessage().find("tile/22.png"), std::string::npos);
}

TEST_F(Loading, LeavesTheOpenCityWhenTheBackdropOfASavedOneIsMissing) {
  for (const char* command :
       {"click mainnew", "click stopen", "click opengo", "advance 500", "set gMission 4",
        "click gmmenu", "click savegame", "click txtsavename", "type river", "click cmdsave",
        "set gMission 15", "advance 2000"}) {
    driver::run(*session_, command);
  }
  fs::remove(data_ / "pictures/tile");
  for (const char* command :
       {"click gmmenu", "click ldgame", "choose File1 river.sav", "click cmdload"}) {
    driver::run(*session_, command);
  }
  EXPECT_NE(driver::run(*session_, "box").find("tile/48.png"), std::string::npos);
  driver::run(*session_, "box ok");
  driver::run(*session_, "advance 500");
  EXPECT_EQ(driver::run(*session_, "get gMission"), "ok 15");
}

}  // namespace
