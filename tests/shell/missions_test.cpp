// Each mission and each puzzle, won and lost at its judgement, on both sides of every comparison.
#include <gtest/gtest.h>

#include "core/missions.h"
#include "platform/files.h"
#include "platform/pixels.h"
#include "scenario/letters.h"
#include "shell/game_screen.h"
#include "shell/script_runner.h"

namespace {

using script::Play;

/// Keeps the people that were set: none move in or out.
void settle(Play& play) {
  play.run("set housingCapacity " + play("get population").substr(3));
}

struct Judgement {
  int mission;
  int year;
  std::string enough;                  // just enough of everything
  std::vector<const char*> tooLittle;  // each alone is not
};

/// All five ratings.
std::string ratings(const std::string& percent) {
  std::string fields;
  for (const char* name : {"market", "school", "tavern", "church", "doctor"}) {
    fields += std::string(" ") + name + "Rating=" + percent;
  }
  return fields;
}

// At the roll food is eaten first (a quarter of the people), and the king's aid has come.
// clang-format off
const Judgement kJudgements[] = {
    {1, 1717, "population=500 food=1625", {"population=499", "food=1624.9"}},
    {2, 1719, "population=1000 gold=2500 churchRating=75",
     {"population=999", "gold=2499.99", "churchRating=74"}},
    {3, 1720, "population=1000 food=2250 gold=2000",
     {"population=999", "food=2249", "gold=1999.9"}},
    {4, 1721, "population=1000", {"population=999"}},
    {5, 1723, "population=1500 gold=6000", {"population=1499", "gold=5999.9"}},
    {6, 1725, "population=1750 food=1437.5 gold=1000",
     {"population=1749", "food=1437", "gold=999"}},
    {7, 1727, "population=1000" + ratings("90"),
     {"population=999", "marketRating=89", "schoolRating=89", "tavernRating=89", "churchRating=89",
      "doctorRating=89", "tileImage(30,30)=19", "tileImage(0,0)=4"}},
    {8, 1729, "population=1250" + ratings("100"),
     {"population=1249", "marketRating=99", "doctorRating=99", "tileImage(9,9)=19"}},
    {9, 1730, "population=750", {"population=749"}},
};
// clang-format on

/// A running game that is judged with what it has at the roll of the month into a year.
void judge(Play& play, const Judgement& judged, const std::string& but = "") {
  play.run("open-play; set gMission=" + std::to_string(judged.mission));
  play.run("set month=12 gYear=" + std::to_string(judged.year - 1) + " " + judged.enough);
  if (!but.empty()) play.run("set " + but);
  settle(play);
  play.run("next-month");
}

TEST(Missions, AreWonWithJustEnoughAndHandTheirCityOver) {
  for (const Judgement& judged : kJudgements) {
    SCOPED_TRACE(judged.mission);
    Play play;
    judge(play, judged);
    const std::string next = std::to_string(judged.mission + 1);
    play.run("Command4: text=\"MISSION COMPLETED\"; Timer9=on Timer2=off");
    EXPECT_EQ(play.file("config.dat"), next + ",0,0,0,0,0,0,0,0,0,0,0\r\n");
    play.run("#file mission" + next + ".dat " + next + ",\nadvance 1000; screen => firstmenu");
    EXPECT_EQ(play.control("Frame1").text, "MISSION " + next);
    EXPECT_EQ(play.control("cpgninfo").text,
              scenario::letter(judged.mission + 1, scenario::LetterSet::homecoming));
  }
}

TEST(Missions, AreLostWhenAnythingFallsShort) {
  for (const Judgement& judged : kJudgements) {
    for (const char* tooLittle : judged.tooLittle) {
      SCOPED_TRACE(std::to_string(judged.mission) + " " + tooLittle);
      Play play;
      judge(play, judged, tooLittle);
      play.run("Command4: text=\"MISSION FAILED\"; Timer11=on Timer2=on");
      play.run("gMission=" + std::to_string(judged.mission));
      EXPECT_EQ(play.file("config.dat"), "1,0,0,0,0,0,0,0,0,0,0,0\r\n");
      play.run("advance 1000; click mainnew");
    }
  }
}

void fillDisk(bool full) {
  platform::setWriteStep(full ? [](const char*) { return false; } : platform::WriteStep{});
}

void expectBox(Play& play, const std::string& begin, const std::string& end) {
  const std::string box = play("box");
  EXPECT_NE(box.find("\"text\":\"" + begin), std::string::npos) << box;
  EXPECT_TRUE(box.ends_with(end + "\"}")) << box;
  play.run("click OK");
}

TEST(Missions, AVictoryOnAFullDiskIsKeptAndWrittenWhenItCanBe) {
  enum Later { atTheMenu, atExit, never };
  for (const Later later : {atTheMenu, atExit, never}) {
    Play play;
    fillDisk(true);
    judge(play, kJudgements[0]);
    expectBox(play, "config.dat: ", "tried again at each return to the menu and at EXIT GAME.");
    expectBox(play, "mission2.dat: ", "Mission 2 cannot start without it: win this mission again.");
    play.run("advance 1000; box => null; Frame1: text=\"MISSION 2\"\n#file config.dat 1,");
    if (later == atTheMenu) {
      fillDisk(false);
      play.run("click Command14; advance 500");
      expectBox(play, "mission2.dat: ", "");  // there is no city to go on with
    } else {
      play.run("click Command11, campaignback, stback, mainquit");
      expectBox(play, "config.dat: ", "EXIT GAME tries once more, and then leaves in any case.");
      play.run("screen => firstmenu");
      if (later == atExit) fillDisk(false);
      play.run("click mainquit; screen => none");
    }
    fillDisk(false);
    play.run(later == never ? "#file config.dat 1," : "#file config.dat 2,");
  }
}

TEST(Missions, ACityThatCannotBeHandedOverIsReportedWithWhatFollows) {
  for (const bool before : {false, true}) {
    Play play;
    if (before) play.write("mission2.dat", "the city of an earlier victory");
    fillDisk(true);
    judge(play, kJudgements[before ? 0 : 2]);
    play.run("click OK");
    if (before) {
      expectBox(play, "mission2.dat: ", "goes on with the city that was handed over before.");
    } else {
      expectBox(play, "mission4.dat: ", "founds a new one and does not need it.");
    }
    fillDisk(false);
  }
}

TEST(Puzzles, SolvedOnAFullDiskAreKept) {
  Play play("puzzle 0; set population 60");
  settle(play);
  fillDisk(true);
  play.run("advance 1000; click OK; advance 1000; puzzleDone1=1");
  fillDisk(false);
  play.program().end(0);  // as when the window is closed
  EXPECT_EQ(play.file("config.dat"), "1,0,1,0,0,0,0,0,0,0,0,0\r\n");
}

/// Whether the next redraw of the map finds nothing to mend.
bool mapIsClean(Play& play) {
  auto& screen = static_cast<shell::GameScreen&>(*play.program().screen());
  const platform::Surface seen = play.map().clone();
  map::DrawTiles2(screen.scene().stage);
  return same(seen, play.map());
}

TEST(Missions, ACastleOpensWithItsFrontWallsWhole) {
  Play play("#write config.dat 9,0,0,0,0,0,0,0,0,0,0,0\nmission 8");
  EXPECT_TRUE(mapIsClean(play));
}

TEST(Missions, TheCityContinuesWithItsPaymentAndAnEmptyBook) {
  for (const auto& [mission, has] : {std::pair{2, "food=3500 gold=7000 gYear=1717"},
                                     {3, "food=5000 gold=4500 gYear=1719"},
                                     {5, "food=5000 gold=7000 gYear=1721"},
                                     {6, "food=5000 gold=1000 gYear=1723"},
                                     {8, "food=5000 gold=7000 gYear=1750"},
                                     {10, "food=5000 gold=7000 gYear=1750"}}) {
    SCOPED_TRACE(mission);
    const std::string number = std::to_string(mission);
    Play play("#write config.dat " + number + ",0,0,0,0,0,0,0,0,0,0,0");
    // A small city is saved under the name of the hand-over file. A market is at the far edge of the
    // mission's square, and its roof rises over the backdrop.
    const int size = core::mission(mission).mapSize;
    const auto cell = [size](int x, int y) {
      const int margin = (30 - size) / 2;
      return " @" + std::to_string(x + margin) + "," + std::to_string(y + margin);
    };
    play.run("open-play; press @15,15; residence @16,15; set gMission " + number);
    play.run("set gMapSize " + std::to_string(size));
    play.run("road" + cell(5, 1) + "; market" + cell(6, 0));
    play.run("set gYear=1750 food=5000 gold=7000 historyIndex=7 month=5 toolUnlocked(1)=1");
    play.run("save city; menu");
    play.write("mission" + number + ".dat", play.file("city.sav"));
    play.run("mission " + std::to_string(mission - 1));
    EXPECT_TRUE(mapIsClean(play));
    play.run(has);
    play.run("month=1 history(7,1)=0 historyIndex=7 currentTool=10 tileImage(16,15)=4 Timer2=on");
    play.run("Command1(4): visible=true; Command1(2): visible=false");
  }
}

/// Pictures of tents in so many cells, anywhere on the map.
std::string tents(int cells) {
  std::string commands;
  for (int n = 0; n < cells; ++n) {
    commands += "set tileImage " + std::to_string(n % 31) + " " + std::to_string(n / 31) + " 4\n";
  }
  return commands;
}

TEST(Puzzles, EndWhenTheirGoalIsReachedAndOnlyGoldCanBeMissed) {
  struct PuzzleEnd {
    int level;
    std::string enough, tooLittle;
  };
  const PuzzleEnd ends[] = {
      {1, "set population 60", "set population 59"},
      {2, tents(88), tents(87)},
      {3, "set gYear=1716 gold=1600", "set gYear=1716 gold=1599.9"},
      {4, "set population 200", "set population 199"},
      {5, tents(92), tents(91)},
      {6, "set gYear=1716 gold=1050", "set gYear=1716 gold=1049"},
      {7, "set population 450", "set population 449"},
      {8, "set population 900", "set population 899"},
      {9, tents(96), tents(95)},
      {10, "set gYear=1716 gold=2000", "set gYear=1716 gold=1999"},
  };
  for (const auto& [level, justEnough, tooLittle] : ends) {
    SCOPED_TRACE(level);
    const bool gold = level == 3 || level == 6 || level == 10;
    Play play("#write config.dat 4,9,0,0,0,0,0,0,0,0,0,0");
    for (const bool enough : {false, true}) {
      play.run("puzzle " + std::to_string(level - 1));
      play.run("gMission=" + std::to_string(19 + level));
      play.run(enough ? justEnough : tooLittle);
      // The tick of the game comes first: people who were set stay, and gold moves by nothing.
      settle(play);
      play.run("advance 1000");
      if (enough || gold) {
        EXPECT_EQ(play.control("Command4").text, enough ? "MISSION COMPLETED" : "MISSION FAILED");
        play.run("Timer15=on; advance 1000; gReturnPuzzle=0; click Command23, stback");
      } else {
        play.run("Timer15=off; menu");
      }
      std::string flags;
      for (int n = 1; n <= 10; ++n) flags += n == level && enough ? ",1" : ",0";
      EXPECT_EQ(play.file("config.dat"), "4,9" + flags + "\r\n");
    }
  }
}

}  // namespace
