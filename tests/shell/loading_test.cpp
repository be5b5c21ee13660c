// What the game needs beyond the menu is read behind the menu's first picture.
#include <gtest/gtest.h>

#include <filesystem>

#include "driver/commands.h"
#include "support/temp_folder.h"

namespace {

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
