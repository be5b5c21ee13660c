// Saving over games, and loading into whatever the screen shows and whatever is under way.
#include <gtest/gtest.h>

#include "core/vocabulary.h"
#include "shell/open_game.h"

namespace {

using script::OpenGame;
namespace ui = script::ui;

/// A game with a market and a residence, saved as "town" with 500 gold.
class SavedTown : public OpenGame {
 public:
  SavedTown() {
    run("set population 1000\nadvance 1000\nclick Command21\npress @15,15\npress @15,16\npress "
        "@15,17");
    run("click Command1 1\npress @16,15\nclick Command1 0\npress @13,15\nset gold 500");
    run("click gmmenu\nclick savegame\nclick txtsavename\ntype town\nclick cmdsave");
  }
  void load() {
    run("click gmmenu\nclick ldgame\nchoose File1 town.sav\nclick cmdload\nadvance 500");
  }
};

TEST(Saving, TheTypedNameWinsAndAnOldGameIsReplacedUnasked) {
  SavedTown play;
  const std::string town = play.file("town.sav");
  // The text box has kept its name.
  play.run("set gold 400\nclick gmmenu\nclick savegame\nclick cmdsave");
  EXPECT_NE(play.file("town.sav"), town);
  EXPECT_FALSE(play.shown(ui::framesave) || play.shown(ui::gamemenu));
  EXPECT_EQ(play.text(ui::haber), "Game saved");
  play.run("click gmmenu\nclick savegame\nclick txtsavename\nkey Backspace\nchoose File2 town.sav");
  const std::string kept = play.file("town.sav");
  play.run("set gold 300\nclick cmdsave");
  EXPECT_FALSE(play.file("tow.sav").empty());
  EXPECT_EQ(play.file("town.sav"), kept);

  play.run("click gmmenu\nclick savegame\nclick txtsavename");
  play.run("key Backspace\nkey Backspace\nkey Backspace\nclick cmdsave");
  EXPECT_EQ(play("box"),
            R"(ok {"title":"Save Error","text":"Choose from the list or enter a new one!"})");
  play.run("click OK\nchoose File2 town.sav\nclick cmdsave");
  EXPECT_NE(play.file("town.sav"), kept);
  play.run("click gmmenu\nclick ldgame\nclick cmdload");
  EXPECT_EQ(play("box"),
            R"(ok {"title":"Error loading saved game","text":"Please select a game for loading"})");
}

TEST(Loading, FromEveryViewAndUnderOpenPanelsGivesTheSameNormalCity) {
  SavedTown play;
  for (int view = 0; view <= 5; ++view) {
    play.run("set walkerX 3 15\nset walkerY 3 16\nset walkerActive 3 1");
    play.run("click Label3\nclick Command5\nclick seer " + std::to_string(view));
    play.run(view % 2 != 0 ? "pointer 799 300\nadvance 50" : "click building\npress @14,15");
    play.load();
    EXPECT_EQ(play.state().gold, 500);
    EXPECT_EQ(play.state().overlayView, 0);
    EXPECT_EQ(play.text(ui::currentview), "Normal view");
    EXPECT_EQ(play.state().currentTool, core::kInfoTool);
    EXPECT_EQ(play.text(ui::Label4) + play.text(ui::buildcurrent), "INFO MODE");
    EXPECT_EQ(play.state().tileImage(16, 15), 8);
    EXPECT_EQ(play.state().tileImage(13, 15), 4);
    EXPECT_EQ(play.state().tileCode(14, 15), 12);
    EXPECT_EQ(play.state().scrollX, 0);
    EXPECT_EQ(play.form()[ui::picScroll].place.left, -592);
    for (const int panel :
         {+ui::Frame14, +ui::Frame6, +ui::Frame2, +ui::tileinfo, ui::Command1 + 3}) {
      EXPECT_TRUE(play.shown(panel));
    }
    EXPECT_FALSE(play.shown(ui::Frametoload) || play.shown(ui::frameload));
    for (const char* timer : {"Timer1", "Timer2", "Timer4", "Timer5", "Timer6", "Timer7"}) {
      EXPECT_TRUE(play.runs(timer)) << timer;
    }
    for (int slot = 1; slot <= core::kWalkers; ++slot)
      EXPECT_EQ(play.state().walkerActive[slot], 0);
    play.run("click Command7\nclick Command21");
  }
}

TEST(Loading, ABannerKeepsTheRestOfItsSavedTimeAndThePickedToolIsNotForgotten) {
  SavedTown play;
  play.run("advance 5000\nclick inform\nadvance 2500\nclick gmmenu\nclick savegame\nclick cmdsave");
  play.run("advance 5000\nclick building\nadvance 5000\nclick Command1 0");
  play.load();
  EXPECT_EQ(play.state().lastPaletteTool, 1);
  EXPECT_EQ(play.state().newsTicks, 10);
  play.run("advance 1249");
  EXPECT_EQ(play.text(ui::haber), "Game loaded");
  EXPECT_TRUE(play.shown(ui::haber));
  play.run("advance 1");
  EXPECT_FALSE(play.shown(ui::haber));
}

TEST(Loading, ARunningRoadLossAndEarthquakeGoOnAndStrikeTheLoadedCity) {
  SavedTown play;
  // What the running game lost its road by is whole again; nothing falls.
  play.run("click Command1 6\npress @15,15\npress @15,16");
  play.load();
  EXPECT_TRUE(play.runs("Timer8"));
  play.run("advance 7500");
  EXPECT_FALSE(play.runs("Timer8"));
  EXPECT_EQ(play.state().tileCode(13, 15), 11);
  // A game saved in the time of grace: loaded after it, the building stands on without a road.
  play.run("click building\nclick Command1 6\npress @15,15\npress @15,16\nclick gmmenu");
  play.run("click savegame\nclick cmdsave\nadvance 7500");
  EXPECT_EQ(play.state().tileCode(13, 15), 0);
  play.load();
  play.run("advance 8000");
  EXPECT_EQ(play.state().tileCode(13, 15), 11);

  play.run("set gMission 3\nset month 2\nset tickOfMonth 40\nadvance 1000\nadvance 90");
  EXPECT_EQ(play.state().quakeShakeTicks, 3);
  play.load();
  EXPECT_TRUE(play.runs("Timer12"));
  EXPECT_EQ(play.state().tileCode(16, 15), 21);
  play.run("random 0 0 0 0 0 0 0 0 0 0\nadvance 1300");
  EXPECT_FALSE(play.runs("Timer12"));
  EXPECT_EQ(play.state().tileCode(16, 15) + play.state().tileCode(13, 15), 0);
}

}  // namespace
