#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "core/new_game.h"
#include "core/number_text.h"

namespace core {
namespace {

TEST(Number, KeepsUnsetApartFromZero) {
  Number number;
  EXPECT_FALSE(number.isSet());
  EXPECT_EQ(number, 0);
  number += 0.5;
  EXPECT_TRUE(number.isSet());
  EXPECT_EQ(number, 0.5);
  number = 0;
  EXPECT_TRUE(number.isSet());
  number = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(number.isSet());
  number.unset();
  EXPECT_FALSE(number.isSet());

  Flag flag;
  EXPECT_FALSE(flag.isSet());
  EXPECT_EQ(flag, 0);
  flag = 0;
  EXPECT_TRUE(flag.isSet());
}

TEST(NumberText, IsTheShortestFormOfFifteenDigits) {
  const auto text = [](double value) { return std::string(NumberText(value).view()); };
  EXPECT_EQ(text(1500), "1500");
  EXPECT_EQ(text(0.1 + 0.2), "0.3");
  EXPECT_EQ(text(-1.0 / 3), "-0.333333333333333");
  EXPECT_EQ(text(-0.0), "0");
  EXPECT_EQ(text(123456789012345), "123456789012345");
  EXPECT_EQ(text(1e15), "1E+15");
  EXPECT_EQ(text(0.000015), "1.5E-05");
  EXPECT_EQ(text(std::numeric_limits<double>::infinity()), "");
  EXPECT_EQ(text(std::numeric_limits<double>::quiet_NaN()), "");
}

TEST(NewGame, LeavesNothingOfTheGameBefore) {
  GameState game;
  ProgramValues values;
  values.gStartMoney = 1;
  resetGame(game, values);
  EXPECT_EQ(game.gold, 300);
  EXPECT_FALSE(game.cellX.isSet());
  EXPECT_FALSE(game.tileCode(-1, 0).isSet());
  EXPECT_FALSE(game.roadService[5](31, 0).isSet());

  game.history(50, 18) = game.history(-4, 1) = 7;
  game.history(51, 1) = game.history(1, 19) = 8;
  game.buildingId(35, 35) = 1;
  game.cellService[3](30, 30) = 1;
  game.population = game.famineState = game.tavernUnlocked = game.toolUnlocked[4] = 9;
  game.lastPaletteTool = game.walkerActive[10] = 1;
  values.gSoundOn = 0;
  values.gStartMoney = 0;
  resetGame(game, values);
  EXPECT_EQ(game.history(50, 18) + game.history(-4, 1), 0);
  EXPECT_EQ(game.history(51, 1) + game.history(1, 19), 16);
  EXPECT_EQ(game.buildingId(35, 35) + game.cellService[3](30, 30), 0);
  EXPECT_EQ(game.population + game.tavernUnlocked + game.toolUnlocked[4], 0);
  EXPECT_EQ(game.lastPaletteTool + game.walkerActive[10], 0);
  EXPECT_EQ(game.famineState, 1);
  EXPECT_EQ(values.gSoundOn, 1);
  EXPECT_EQ(game.gold, 300);  // no choice, no change
}

}  // namespace
}  // namespace core
