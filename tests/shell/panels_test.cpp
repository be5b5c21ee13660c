// The panels of the game screen: what their captions say is what the game does.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "core/vocabulary.h"
#include "shell/open_game.h"

namespace {

using script::OpenGame;
namespace ui = script::ui;

std::string number(double value) {
  return std::to_string(static_cast<int>(value));
}

std::string upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

TEST(Panels, TwoMilestonesInOneTickUnlockBothAndTheLaterOneIsTold) {
  OpenGame play;
  play.run("set population 249\nadvance 1000");
  EXPECT_TRUE(play.shown(ui::Command1 + 4));
  EXPECT_FALSE(play.shown(ui::Command1 + 2));
  EXPECT_NE(play.text(ui::bilgilabel).find("church"), std::string::npos);
  play.run("set population 1000\nadvance 1000");
  for (const int button : {2, 3, 4, 5}) EXPECT_TRUE(play.shown(ui::Command1 + button));
  EXPECT_EQ(
      play.text(ui::bilgilabel),
      " Congratulations, your settlement  has more than 1000 inhabitants,    you can now build "
      "tavern.");
  // Told once: the notice that was closed stays closed.
  play.run("click Command21\nset population 1000\nadvance 1000");
  EXPECT_FALSE(play.shown(ui::bilgi));
}

TEST(Panels, EveryToolCostsCoversReachesAndIsCalledAsTheCaptionsSay) {
  OpenGame play;
  play.run("set population 1000\nadvance 1000\nclick Command21\nset gold 5000");
  for (int y = 10; y <= 20; ++y) play.run("press @15," + std::to_string(y));
  struct Site {
    int button, x, y;
  };
  for (const Site site : {Site{7, 9, 10},
                          {0, 13, 10},
                          {8, 10, 16},
                          {1, 16, 10},
                          {4, 16, 12},
                          {2, 16, 14},
                          {5, 16, 16},
                          {3, 16, 18}}) {
    const std::string press = "press @" + number(site.x) + "," + number(site.y);
    play.run("click building\nclick Command1 " + number(site.button));
    const std::string name = play.text(ui::buildcurrent);
    const double gold = play.state().gold;
    const double id = play.state().nextBuildingId;
    play.run(press);
    EXPECT_EQ(play.text(ui::buildprice), "Price:" + number(gold - play.state().gold));
    int cells = 0;
    for (int y = 0; y <= 30; ++y) {
      for (int x = 0; x <= 30; ++x) cells += play.state().buildingId(x, y) == id;
    }
    EXPECT_EQ(cells, play.state().cursorFootprint * play.state().cursorFootprint) << name;

    const double upkeep = play.state().maintenancePerMonth;
    play.run("advance 1000\nclick inform\n" + press);
    EXPECT_EQ(play.text(ui::mailbl),
              "Maintenance:" + number(play.state().maintenancePerMonth - upkeep));
    if (site.button == 0) {
      EXPECT_EQ(name + play.text(ui::namlbl), "Current:HouseTENT");
    } else {
      EXPECT_EQ(upper(name), "CURRENT:" + play.text(ui::namlbl));
    }
    const std::string area = play.text(ui::buildsize).substr(std::string("Effect area:").size());
    const int k = core::serviceOfCode(play.state().tileCode(site.x, site.y));
    if (k == 0) {
      EXPECT_EQ(area, "-");
      continue;
    }
    const auto& cover = core::coverGrid(play.state(), k);
    EXPECT_EQ(area, number(area[0] - '0') + "x" + area[0]);
    EXPECT_EQ(cover(site.x - (area[0] - '0'), site.y), 1) << name;
    EXPECT_EQ(cover(site.x - (area[0] - '0') - 1, site.y), 0) << name;
  }
  play.run("press @20,20");
  EXPECT_EQ(play.text(ui::namlbl) + play.text(ui::mailbl), "EMPTY LANDMaintenance:-");
  play.run("click building\nclick Command1 6");
  EXPECT_EQ(play.text(ui::buildcurrent) + play.text(ui::buildprice), "Current:DemolishPrice:-");
  EXPECT_EQ(play.text(ui::namlbl), "");
}

TEST(Panels, InfoTellsATentsCellAHousesSumAndTwoReadingsOfAccess) {
  OpenGame play;
  play.run("press @15,15\nclick Command1 0\npress @13,15\nclick inform");
  play.run("set cellCapacity 13 15 3.9\nset schoolCover 13 15 1\nset cellService 1 13 15 1");
  const auto ask = [&play](const char* cell) {
    play.run(std::string("press @") + cell);
    return play.text(ui::namlbl) + " " + play.text(ui::poplbl) + " " + play.text(ui::totlbl);
  };
  EXPECT_EQ(ask("13,15"), "TENT Max. housing:3 Total:Bad");
  EXPECT_EQ(play.text(ui::marlbl) + play.text(ui::schlbl), "Market access:YesSchool access:No");
  EXPECT_EQ(ask("14,16"), "TENT Max. housing:2 Total:Very bad");
  // Cells of 4.4: a house of 17.
  play.run("set food 9\nset taxRate 15\nclick Statusreport\nclick taxrateminus\nclick statusclose");
  EXPECT_EQ(ask("14,16"), "TENT Max. housing:2 Total:Very bad");
  for (const char* cell : {"13 15", "14 15", "13 16", "14 16"}) {
    play.run(std::string("set cellService 1 ") + cell + " 1");
  }
  play.run("click Statusreport\nclick taxrateplus\nclick taxrateminus\nclick statusclose");
  EXPECT_EQ(ask("14,16"), "HOUSE Max. housing:17 Total:Very bad");
  // In a view the picture names no stage: the name stays, the housing is the cell's, no road asked.
  ask("15,15");
  play.run("click seer 2");
  EXPECT_EQ(ask("14,16"), "ROAD Max. housing:4 Total:Very bad");
  EXPECT_EQ(ask("20,20"), "EMPTY LAND Max. housing:- Total:-");
  // The press is clamped for the tool that was last in hand.
  play.run("click seer 0\nclick building\nclick Command1 8\nclick inform\npress @27,21");
  EXPECT_EQ(play.state().cellX, 25);
}

TEST(Panels, PreferencesStepWithinTheirEndsAndActWhenTheyShould) {
  OpenGame play;
  play.run("set ticksPerMonth 20\nclick Command5");
  EXPECT_EQ(play.text(ui::gamespeed), "Normal");
  for (const char* step :
       {"minus Slow 34", "minus Slow 34", "plus Normal 25", "plus Fast 16", "plus Fast 16"}) {
    char button[8];
    char caption[8];
    int ticks = 0;
    std::sscanf(step, "%7s %7s %d", button, caption, &ticks);
    play.run(std::string("click gamespeed") + button);
    EXPECT_EQ(play.text(ui::gamespeed), caption);
    EXPECT_EQ(play.state().ticksPerMonth, ticks);
  }
  // The first month keeps its length, whatever the speed.
  play.run("set tickOfMonth 29\nadvance 1000");
  EXPECT_EQ(play.state().month, 1);
  play.run("advance 1000");
  EXPECT_EQ(play.state().month, 2);
  play.run("advance 15000");
  EXPECT_EQ(play.state().month, 2);
  play.run("advance 1000");
  EXPECT_EQ(play.state().month, 3);

  play("sounds");
  play.run("click scrollspeedminus\nclick Command7\nclick Label3\nclick Command21\npress @20,20");
  EXPECT_EQ(play("sounds"), "ok []");
  play.run("click Command5\nclick scrollspeedminus\nclick Label3\nclick Command21\nclick Command7");
  EXPECT_EQ(play("sounds"), "ok [\"sound1.wav\"]");

  play.run("press @18,18\nclick Command1 8\npress @10,16\nset tickOfMonth 5\nadvance 1000");
  EXPECT_EQ(play.state().tileImage(12, 18), 54);
  play.run("click Command5\nclick zoomminus");
  EXPECT_EQ(play.text(ui::zoomminus), "Off");
  EXPECT_EQ(play.state().tileImage(12, 18), 13);
  play.run("set tickOfMonth 5\nadvance 1000\nclick zoomminus");
  EXPECT_EQ(play.state().tileImage(12, 18), 13);
  play.run("set tickOfMonth 10\nadvance 1000");
  EXPECT_EQ(play.state().tileImage(12, 18), 55);

  play.run("click spriteonoff");
  EXPECT_EQ(play.text(ui::spriteonoff), "Off");
  EXPECT_FALSE(play.runs("Timer6") || play.runs("Timer7"));
  play.run("click spriteonoff");
  EXPECT_TRUE(play.runs("Timer6") && play.runs("Timer7"));
}

TEST(Panels, TheTopBarShowsFloorsAndTheTaxStopsAtItsEnds) {
  OpenGame play;
  const auto gold = [&play](const char* value) {
    play.run(std::string("set gold ") + value + "\nadvance 200");
    return play.text(ui::para1);
  };
  EXPECT_EQ(gold("0.4"), "Gold:0");
  EXPECT_EQ(gold("-0.4"), "Gold:-1");
  EXPECT_EQ(gold("-74"), "Gold:-74");
  EXPECT_EQ(gold("1234567.9"), "Gold:1234567");
  play.run("set food 8.9\nadvance 200\nset population 7\nset housingCapacity 7\nadvance 1000");
  EXPECT_EQ(play.text(ui::FoodS) + play.text(ui::pop1), "Food:8Population:7");

  play.run("click Statusreport");
  for (int n = 0; n < 7; ++n) play.run("click taxrateplus");
  EXPECT_EQ(play.text(ui::showtaxrate), "30");
  for (int n = 0; n < 8; ++n) play.run("click taxrateminus");
  EXPECT_EQ(play.text(ui::showtaxrate), "0");
}

TEST(Panels, TheBannerStaysForItsTimeAndALaterMessageSharesIt) {
  OpenGame play;
  play.run("click inform\nadvance 249");
  EXPECT_FALSE(play.shown(ui::haber));
  play.run("advance 1");
  EXPECT_TRUE(play.shown(ui::haber));
  play.run("advance 2750\nclick building");
  EXPECT_EQ(play.text(ui::haber), "BUILD MODE SELECTED");
  play.run("advance 749");
  EXPECT_TRUE(play.shown(ui::haber));
  play.run("advance 1");
  EXPECT_FALSE(play.shown(ui::haber));
  play.run("press @15,15\npress @15,15\nadvance 3749");
  EXPECT_TRUE(play.shown(ui::haber));
}

TEST(Panels, ThePointerLightsWhatItIsStrictlyWithin) {
  OpenGame play;
  const auto lit = [&play](int x, int y) {
    play.run("pointer " + number(x) + " " + number(y) + "\nadvance 25");
    return play.state().hoverLabel.whole();
  };
  EXPECT_EQ(lit(644, 150), 0);
  EXPECT_EQ(lit(645, 150), 1);
  EXPECT_EQ(lit(664, 150), 0);  // between two views
  EXPECT_EQ(lit(665, 150), 2);
  EXPECT_EQ(lit(781, 154), 6);
  EXPECT_EQ(lit(781, 155), 0);
  EXPECT_EQ(lit(779, 139 + 34), 7);
  EXPECT_EQ(lit(708, 360), 0);
  EXPECT_EQ(lit(707, 371), 12);
  EXPECT_EQ(play.form()[ui::Command1 + 7].fore, platform::kYellow);
  EXPECT_EQ(lit(707, 372), 0);
  EXPECT_EQ(play.form()[ui::Command1 + 7].fore, platform::kBlack);
}

}  // namespace
