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

}  // namespace
