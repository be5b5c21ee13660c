// The menu as a player goes through it: what lights, what is told, what is chosen and what it does.
#include <gtest/gtest.h>

#include "core/number_text.h"
#include "shell/script_runner.h"

namespace {

using script::Play;

const platform::Control& control(Play& play, const char* name, int index = platform::kSingle) {
  platform::Form& form = play.session().program().screen()->form();
  return form[form.find(name, index)];
}

int cues(Play& play, const char* cue) {
  const std::string log = play("sounds");
  int count = 0;
  for (std::size_t at = 0; (at = log.find(cue, at)) != std::string::npos; ++at) ++count;
  return count;
}

struct Row {
  const char* name;
  int top, bottom;  // of its band on the screen, inclusive
};

TEST(Menu, LightsARowWithinItsBandAndSoundsOnEnteringIt) {
  const std::vector<Row> panels[] = {{{"mainnew", 241, 264},
                                      {"mainload", 281, 304},
                                      {"mainhelp", 321, 344},
                                      {"maincredits", 361, 384},
                                      {"mainquit", 401, 424}},
                                     {{"stcampaign", 169, 189},
                                      {"stpuzzle", 209, 229},
                                      {"stopen", 249, 269},
                                      {"stback", 409, 429}}};
  Play play;
  for (const std::vector<Row>& rows : panels) {
    const auto litAt = [&](int x, int y) {
      play.run("pointer " + std::to_string(x) + " " + std::to_string(y) + "\nadvance 30");
      std::string lit;
      for (const Row& row : rows) {
        if (control(play, row.name).fore == platform::kYellow) lit += row.name;
      }
      return lit;
    };
    for (const Row& row : rows) {
      litAt(10, 10);
      cues(play, "");
      EXPECT_EQ(litAt(330, row.top), row.name);
      EXPECT_EQ(cues(play, "sound2.wav"), 1);
      EXPECT_EQ(litAt(470, row.bottom), row.name);
      EXPECT_EQ(cues(play, "sound2.wav"), 0);
      for (const auto& [x, y] : {std::pair{329, row.top},
                                 {471, row.bottom},
                                 {400, row.top - 1},
                                 {400, row.bottom + 1}}) {
        EXPECT_EQ(litAt(x, y), "") << x << " " << y;
      }
      play.run("set gSoundOn 0");
      EXPECT_EQ(litAt(400, row.top), row.name);
      EXPECT_EQ(cues(play, "sound2.wav"), 0);
      play.run("set gSoundOn 1");
    }
    if (control(play, "main").visible) play.run("click mainnew");
  }
}

TEST(Menu, TintsTheGroundUnderThePointerAndTellsWhatARowIs) {
  Play play;
  constexpr platform::Color kLit{225, 238, 253}, kPlain{203, 221, 241};
  play.run("hover mainload");
  EXPECT_EQ(control(play, "mainload").back, kLit);
  // It stays when the pointer leaves all rows, and goes over with the pointer to another.
  play.run("pointer 10 10");
  EXPECT_EQ(control(play, "mainload").back, kLit);
  play.run("hover mainquit");
  EXPECT_EQ(control(play, "mainload").back, kPlain);
  EXPECT_EQ(control(play, "mainquit").back, kLit);
  play.run("click mainnew\nhover stcampaign");
  const auto hint = [&] { return std::string(control(play, "Label4").text.view()); };
  EXPECT_EQ(hint(),
            " In the campaign mode you are offered ten missions with increasing difficulty");
  play.run("hover stpuzzle");
  EXPECT_EQ(hint(), "This is a funny but difficult mode,consists of ten challenging missions");
  play.run("hover stback");
  EXPECT_EQ(hint(), "Back to main menu");
  play.run("pointer 310 160");
  EXPECT_EQ(hint(), "");
}

TEST(Menu, OpensMissionsOneAfterAnother) {
  Play play;
  play.write("config.dat", "3,0,0,0,0,0,0,0,0,0,0,0\r\n");
  play.restart();
  play.run("click mainnew\nclick stcampaign");
  const auto text = [&](const char* name) { return std::string(control(play, name).text.view()); };
  EXPECT_EQ(text("statuslbl"), "Status: COMPLETED");
  play.run("hover Label6 1\nhover Label6 2");
  EXPECT_EQ(text("statuslbl"), "Status: NOT COMPLETED");
  EXPECT_TRUE(control(play, "Label6", 2).border);
  EXPECT_FALSE(control(play, "Label6", 1).border);
  EXPECT_EQ(text("difflbl") + text("mapsizelbl") + text("fertilelbl"),
            "Difficulty: EasyMap size: SmallLand fertiliy: Good");
  play.run("pointer 145 150");  // beside the rows
  EXPECT_EQ(text("difflbl") + text("mapsizelbl") + text("fertilelbl") + text("statuslbl"),
            "Difficulty: Map size: Land fertiliy: Status:");
  EXPECT_FALSE(control(play, "Label6", 2).border);

  play.run("click Label6 3");
  EXPECT_TRUE(control(play, "command7").visible);
  EXPECT_EQ(play("get selectedMission"), "ok 3");
  play.run("advance 1249");
  EXPECT_TRUE(control(play, "command7").visible);
  play.run("advance 1");
  EXPECT_FALSE(control(play, "command7").visible);
  // An open row takes the notice away; so does leaving the list.
  play.run("click Label6 9\nclick Label6 2");
  EXPECT_FALSE(control(play, "command7").visible);
  EXPECT_EQ(text("Frame1"), "MISSION 3");
  EXPECT_TRUE(text("cpgninfo").starts_with("    Well,if we think you are not noble"));
  play.run("click Command11\nclick Label6 9\nclick campaignback");
  EXPECT_FALSE(control(play, "command7").visible);
  play.run("hover stback");
}

TEST(Menu, MarksPuzzlesAndSoundsOnEnteringARow) {
  Play play;
  play.write("config.dat", "1,0,0,1,0,0,0,0,0,0,0,0\r\n");
  play.restart();
  play.run("click mainnew\nclick stpuzzle\nsounds\nhover Label20 4");
  EXPECT_EQ(control(play, "Picture11").image, control(play, "Picture20").image);
  EXPECT_EQ(control(play, "Picture12").image, control(play, "Picture21").image);
  EXPECT_EQ(cues(play, "sound1.wav"), 1);
  play.run("pointer 10 10\nhover Label20 4");
  EXPECT_EQ(cues(play, "sound1.wav"), 0);
  EXPECT_TRUE(control(play, "Label20", 4).border);
  play.run("hover Label20 9");
  EXPECT_FALSE(control(play, "Label20", 4).border);
  EXPECT_EQ(cues(play, "sound1.wav"), 1);
}

TEST(OpenPlay, ReckonsTheDifficultyOfAllItsForms) {
  constexpr const char* kSizes[] = {"Check3", "Check1", "Check2"};
  constexpr const char* kLands[] = {"Check4", "Check5", "Check6"};
  constexpr const char* kMoneys[] = {"Check7", "Check8", "Check9"};
  constexpr double kDifficulty[9][3] = {
      {168, 140, 119},  {210, 175, 148.75}, {283.5, 236.25, 200.8125},
      {96, 80, 68},     {120, 100, 85},     {162, 135, 114.75},
      {62.4, 52, 44.2}, {78, 65, 55.25},    {105.3, 87.75, 74.5875}};
  Play play;
  play.run("click mainnew\nclick stopen");
  EXPECT_EQ(control(play, "openplaydiff").text, "Overall difficulty:100%");
  const auto check = [&](const char* box) {
    if (!control(play, box).checked) play.run(std::string("click ") + box);
  };
  for (int n = 0; n < 27; ++n) {
    // Each click changes the figure, so the last of the three is made anew.
    check(kSizes[n / 9]);
    check(kLands[n / 3 % 3]);
    check(kMoneys[n % 3]);
    const std::string figure(core::NumberText(kDifficulty[n / 3][n % 3]).view());
    EXPECT_EQ(control(play, "openplaydiff").text, "Overall difficulty:" + figure + "%");
    int checked = 0;
    for (const auto& group : {kSizes, kLands, kMoneys}) {
      for (int box = 0; box < 3; ++box) checked += control(play, group[box]).checked;
    }
    EXPECT_EQ(checked, 3);
  }
}

TEST(OpenPlay, KeepsWhatWasChosenForThisVisitToTheMenu) {
  Play play;
  const std::string open = "click mainnew\nclick stopen\n";
  const std::string leave = "click gmmenu\nclick Command19\n";
  // Untouched, the land fits none of the boxes.
  play.run(open + "click opengo\nadvance 500");
  EXPECT_EQ(play("get gMapSize"), "ok 24");
  // The checked box unchecked: nothing changes; checked again, its value comes.
  play.run(leave + open + "click Check1");
  EXPECT_FALSE(control(play, "Check1").checked);
  EXPECT_EQ(play("get gMapSize"), "ok 24");
  play.run("click Check1");
  EXPECT_EQ(play("get gMapSize"), "ok 22");
  play.run("click Check2\nclick Check2\nclick Check4\nclick Check9\nclick openback\nclick stopen");
  EXPECT_EQ(play("get gMapSize"), "ok 28");
  EXPECT_TRUE(control(play, "Check9").checked);
  // Fertility leaks into a puzzle, money into the ninth mission.
  play.run("click openback\nclick stpuzzle\nclick Label20 0\nadvance 500");
  EXPECT_EQ(play("get gFertility"), "ok 1.2");
  EXPECT_EQ(play("get gMapSize"), "ok 4");
  EXPECT_EQ(play("get gold"), "ok 2000");
  play.write("config.dat", "9,0,0,0,0,0,0,0,0,0,0,0\r\n");
  const std::string ninth = "click stcampaign\nclick Label6 8\nclick Command14\nadvance 500\n";
  play.run(leave + open + "click Check9\nclick openback\n" + ninth);
  EXPECT_EQ(play("get gold"), "ok 1000");
  EXPECT_EQ(play("get gFertility"), "ok 0.8");
  play.run(leave + "click mainnew\n" + ninth);
  EXPECT_EQ(play("get gold"), "ok 600");
}

TEST(Menu, SaysThatItLoadsInFrontOfEverything) {
  Play play;
  // A mission won again: the main panel stands behind the briefing.
  play.run("click mainnew\nclick stopen\nclick opengo\nadvance 500");
  play.run("set gBackToMenu 1\nset gReplayedMission 1\nclick gmmenu\nclick Command19");
  EXPECT_TRUE(control(play, "main").visible);
  play.run("click Command14");
  EXPECT_EQ(play("top 400 300"), "ok loadingtext");
  EXPECT_EQ(control(play, "lblloading").text, "Please wait while loading...");
  play.run("advance 499");
  EXPECT_EQ(play("screen"), "ok firstmenu");
  play.run("advance 1");
  EXPECT_EQ(play("screen"), "ok frmMain");
}

TEST(Menu, TellsTheGameScreenWhatToOpen) {
  struct Start {
    const char* clicks;
    const char* chosen;  // gMission, gNewMap, gContinueMission, gLoadPending before the game opens
    const char* left;    // and after
  };
  // Each start follows on what the one before has left behind.
  const Start starts[] = {
      {"click mainnew\nclick stcampaign\nclick Label6 0\nclick Command14", "1 0 1 0", "1 0 1 0"},
      {"click mainload", "15 0 1 0", "15 0 1 1"},
      {"click mainnew\nclick stopen\nclick opengo", "15 1 0 0", "15 1 0 0"},
      {"click mainload", "15 1 0 0", "15 0 0 1"},
      {"click mainnew\nclick stpuzzle\nclick Label20 9", "29 1 0 0", "29 1 0 0"},
      {"click mainhelp", "16 1 0 0", "16 1 0 0"},
  };
  Play play;
  const auto flags = [&] {
    std::string all;
    for (const char* name : {"gMission", "gNewMap", "gContinueMission", "gLoadPending"}) {
      all += (all.empty() ? "" : " ") + play(std::string("get ") + name).substr(3);
    }
    return all;
  };
  for (const Start& start : starts) {
    play.run(start.clicks);
    EXPECT_EQ(flags(), start.chosen) << start.clicks;
    play.run("advance 500");
    EXPECT_EQ(flags(), start.left) << start.clicks;
    if (control(play, "frameload").visible) {
      play.run("click cmdcancel\nadvance 500");
    } else if (control(play, "Frame6").visible) {
      play.run("click gmmenu\nclick Command19");
    }
  }
}

}  // namespace
