// What is kept when the window or the page goes.
#include "shell/unsaved_city.h"

#include <gtest/gtest.h>

#include "shell/script_runner.h"

namespace {

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
