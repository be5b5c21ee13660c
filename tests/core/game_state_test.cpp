#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "core/new_game.h"
#include "core/number_text.h"

namespace core {
namespace {

TEST(NumberText, IsTheShortestFormOfFifteenDigits) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const auto& [value, text] : {std::pair{1500.0, "1500"},
                                    {0.1 + 0.2, "0.3"},
                                    {-1.0 / 3, "-0.333333333333333"},
                                    {-0.0, "0"},
                                    {123456789012345.0, "123456789012345"},
                                    {1e15, "1E+15"},
                                    {0.000015, "1.5E-05"},
                                    {infinity, ""},
                                    {infinity - infinity, ""}}) {
    EXPECT_EQ(NumberText(value).view(), text);
  }
}

TEST(NewGame, LeavesNothingOfTheGameBefore) {
  GameState game;
  ProgramValues values;
  values.gStartMoney = 1;
  resetGame(game, values);
  EXPECT_EQ(game.gold, 300);
  EXPECT_FALSE(game.cellX.isSet() || game.tileCode(-1, 0).isSet());

  game.history(50, 18) = game.history(-4, 1) = game.history(51, 1) = game.history(1, 19) = 7;
  game.buildingId(35, 35) = game.lastPaletteTool = game.walkerActive[10] = 1;
  game.cellService[3](30, 30) = 1;
  game.population = game.famineState = game.tavernUnlocked = game.toolUnlocked[4] = 9;
  values.gSoundOn = values.gStartMoney = 0;
  resetGame(game, values);
  for (const double cleared :
       {double(game.history(50, 18)), double(game.history(-4, 1)), double(game.buildingId(35, 35)),
        double(game.cellService[3](30, 30)), double(game.walkerActive[10]), double(game.population),
        double(game.tavernUnlocked), double(game.toolUnlocked[4]), double(game.lastPaletteTool)}) {
    EXPECT_EQ(cleared, 0);
  }
  EXPECT_EQ(game.famineState, 1);
  EXPECT_EQ(game.history(51, 1), 7) << "beside the book";
  EXPECT_EQ(game.history(1, 19), 7);
  EXPECT_EQ(values.gSoundOn, 1);
  EXPECT_EQ(game.gold, 300);  // no choice, no change
}

}  // namespace
}  // namespace core
