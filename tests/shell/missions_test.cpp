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

/// A running game that is judged with what it has at the roll of the month into a year.
void judge(Play& play, int mission, int year, const std::string& has) {
  play.run("click mainnew\nclick stopen\nclick opengo\nadvance 500");
  play.run("set gMission " + std::to_string(mission) + "\nset gYear " + std::to_string(year - 1));
  play.run("set month 12\nset tickOfMonth 30\nset famineState 0\n" + has);
  settle(play);
  play.run("advance 1000");
}

struct Judgement {
  int mission;
  int year;
  const char* enough;                  // just enough of everything
  std::vector<const char*> tooLittle;  // each alone is not
};

// At the roll food is eaten first (a quarter of the people), and the king's aid has come.
const Judgement kJudgements[] = {
    {1, 1717, "set population 500\nset food 1625", {"set population 499", "set food 1624.9"}},
    {2,
     1719,
     "set population 1000\nset gold 2500\nset churchRating 75",
     {"set population 999", "set gold 2499.99", "set churchRating 74"}},
    {3,
     1720,
     "set population 1000\nset food 2250\nset gold 2000",
     {"set population 999", "set food 2249", "set gold 1999.9"}},
    {4, 1721, "set population 1000", {"set population 999"}},
    {5, 1723, "set population 1500\nset gold 6000", {"set population 1499", "set gold 5999.9"}},
    {6,
     1725,
     "set population 1750\nset food 1437.5\nset gold 1000",
     {"set population 1749", "set food 1437", "set gold 999"}},
    {7,
     1727,
     "set population 1000\nset marketRating 90\nset schoolRating 90\nset tavernRating 90\n"
     "set churchRating 90\nset doctorRating 90",
     {"set population 999", "set marketRating 89", "set schoolRating 89", "set tavernRating 89",
      "set churchRating 89", "set doctorRating 89", "set tileImage 30 30 19",
      "set tileImage 0 0 4"}},
    {8,
     1729,
     "set population 1250\nset marketRating 100\nset schoolRating 100\nset tavernRating 100\n"
     "set churchRating 100\nset doctorRating 100",
     {"set population 1249", "set marketRating 99", "set doctorRating 99", "set tileImage 9 9 19"}},
    {9, 1730, "set population 750", {"set population 749"}},
};

std::string caption(Play& play, const std::string& control) {
  const std::string answer = play("control " + control);
  const std::size_t at = answer.find("\"text\":\"") + 8;
  return answer.substr(at, answer.find("\",\"color", at) - at);
}

TEST(Missions, AreWonWithJustEnoughAndHandTheirCityOver) {
  for (const Judgement& judged : kJudgements) {
    SCOPED_TRACE(judged.mission);
    Play play;
    judge(play, judged.mission, judged.year, judged.enough);
    const std::string next = std::to_string(judged.mission + 1);
    EXPECT_EQ(caption(play, "Command4"), "MISSION COMPLETED");
    EXPECT_EQ(play("timer Timer9"), "ok on 1000");
    EXPECT_EQ(play("timer Timer2"), "ok off 1000");
    EXPECT_EQ(play.file("config.dat"), next + ",0,0,0,0,0,0,0,0,0,0,0\r\n");
    EXPECT_TRUE(play.file("mission" + next + ".dat").starts_with(next + ","));
    play.run("advance 1000");
    EXPECT_EQ(play("screen"), "ok firstmenu");
    EXPECT_EQ(caption(play, "Frame1"), "MISSION " + next);
    EXPECT_EQ(caption(play, "cpgninfo"),
              scenario::letter(judged.mission + 1, scenario::LetterSet::homecoming));
  }
}

TEST(Missions, AreLostWhenAnythingFallsShort) {
  for (const Judgement& judged : kJudgements) {
    for (const char* tooLittle : judged.tooLittle) {
      SCOPED_TRACE(std::to_string(judged.mission) + " " + tooLittle);
      Play play;
      judge(play, judged.mission, judged.year, judged.enough + std::string("\n") + tooLittle);
      EXPECT_EQ(caption(play, "Command4"), "MISSION FAILED");
      EXPECT_EQ(play("timer Timer11"), "ok on 1000");
      EXPECT_EQ(play("timer Timer2"), "ok on 1000");
      EXPECT_EQ(play("get gMission"), "ok " + std::to_string(judged.mission));
      EXPECT_EQ(play.file("config.dat"), "1,0,0,0,0,0,0,0,0,0,0,0\r\n");
      play.run("advance 1000\nclick mainnew");
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
    judge(play, 1, 1717, kJudgements[0].enough);
    expectBox(play, "config.dat: ", "tried again at each return to the menu and at EXIT GAME.");
    expectBox(play, "mission2.dat: ", "Mission 2 cannot start without it: win this mission again.");
    play.run("advance 1000");
    EXPECT_EQ(play("box"), "ok null");
    EXPECT_EQ(caption(play, "Frame1"), "MISSION 2");
    EXPECT_TRUE(play.file("config.dat").starts_with("1,"));
    if (later == atTheMenu) {
      fillDisk(false);
      play.run("click Command14\nadvance 500");
      expectBox(play, "mission2.dat: ", "");  // there is no city to go on with
    } else {
      play.run("click Command11\nclick campaignback\nclick stback\nclick mainquit");
      expectBox(play, "config.dat: ", "EXIT GAME tries once more, and then leaves in any case.");
      EXPECT_EQ(play("screen"), "ok firstmenu");
      if (later == atExit) fillDisk(false);
      play.run("click mainquit");
      EXPECT_EQ(play("screen"), "ok none");
    }
    fillDisk(false);
    EXPECT_TRUE(play.file("config.dat").starts_with(later == never ? "1," : "2,"));
  }
}

TEST(Missions, ACityThatCannotBeHandedOverIsToldWithWhatFollows) {
  for (const bool before : {false, true}) {
    Play play;
    const Judgement& judged = kJudgements[before ? 0 : 2];
    if (before) play.write("mission2.dat", "the city of an earlier victory");
    fillDisk(true);
    judge(play, judged.mission, judged.year, judged.enough);
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
  Play play;
  play.run("click mainnew\nclick stpuzzle\nclick Label20 0\nadvance 500\nset population 60");
  settle(play);
  fillDisk(true);
  play.run("advance 1000\nclick OK\nadvance 1000");
  EXPECT_EQ(play("get puzzleDone1"), "ok 1");
  fillDisk(false);
  play.session().program().end(0);  // as when the window is closed
  EXPECT_EQ(play.file("config.dat"), "1,0,1,0,0,0,0,0,0,0,0,0\r\n");
}

/// Whether the next redraw of the map finds nothing to mend.
bool mapIsClean(Play& play) {
  auto& screen = static_cast<shell::GameScreen&>(*play.session().program().screen());
  const platform::Surface seen = screen.canvas()->surface().clone();
  map::DrawTiles2(screen.scene().stage, map::kTallCells);
  return same(seen, screen.canvas()->surface());
}

TEST(Missions, ACastleOpensWithItsFrontWallsWhole) {
  Play play;
  play.write("config.dat", "9,0,0,0,0,0,0,0,0,0,0,0\r\n");
  play.restart();
  play.run("click mainnew\nclick stcampaign\nclick Label6 8\nclick Command14\nadvance 500");
  EXPECT_TRUE(mapIsClean(play));
}

TEST(Missions, TheCityGoesOnWithItsPaymentAndAnEmptyBook) {
  struct Continued {
    int mission;
    const char* food;
    const char* gold;
    const char* year;
  };
  for (const auto& [mission, food, gold, year] :
       {Continued{2, "3500", "7000", "1717"}, Continued{3, "5000", "4500", "1719"},
        Continued{5, "5000", "7000", "1721"}, Continued{6, "5000", "1000", "1723"},
        Continued{8, "5000", "7000", "1750"}, Continued{10, "5000", "7000", "1750"}}) {
    SCOPED_TRACE(mission);
    Play play;
    const std::string number = std::to_string(mission);
    play.write("config.dat", number + ",0,0,0,0,0,0,0,0,0,0,0\r\n");
    play.restart();
    // A small city is saved under the name of the hand-over file.
    play.run("click mainnew\nclick stopen\nclick opengo\nadvance 500");
    play.run("press @15,15\nclick Command1 0\npress @16,15\nset gMission " + number);
    // A market at the far edge of the mission's square, whose roof rises over the backdrop.
    const int size = core::mission(mission).mapSize;
    const auto cell = [&](int x, int y) {
      return "press @" + std::to_string(x + (30 - size) / 2) + "," +
             std::to_string(y + (30 - size) / 2);
    };
    play.run("set gMapSize " + std::to_string(size));
    play.run("click Command1 7\n" + cell(5, 1) + "\nclick Command1 1\n" + cell(6, 0));
    play.run("set gYear 1750\nset food 5000\nset gold 7000\nset historyIndex 7\nset month 5");
    play.run("set toolUnlocked 1 1\nclick gmmenu\nclick savegame\nclick txtsavename\ntype city");
    play.run("click cmdsave\nclick gmmenu\nclick Command19");
    play.write("mission" + number + ".dat", play.file("city.sav"));
    play.run("click mainnew\nclick stcampaign\nclick Label6 " + std::to_string(mission - 1));
    play.run("click Command14\nadvance 500");
    EXPECT_TRUE(mapIsClean(play));
    EXPECT_EQ(play("get food"), std::string("ok ") + food);
    EXPECT_EQ(play("get gold"), std::string("ok ") + gold);
    EXPECT_EQ(play("get gYear"), std::string("ok ") + year);
    EXPECT_EQ(play("get month"), "ok 1");
    EXPECT_EQ(play("get history 7 1"), "ok 0");
    EXPECT_EQ(play("get historyIndex"), "ok 7");
    EXPECT_EQ(play("get currentTool"), "ok 10");
    EXPECT_EQ(play("get tileImage 16 15"), "ok 4");
    EXPECT_EQ(play("timer Timer2"), "ok on 1000");
    EXPECT_TRUE(play("control Command1 4").find("\"visible\":true") != std::string::npos);
    EXPECT_TRUE(play("control Command1 2").find("\"visible\":false") != std::string::npos);
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
      {3, "set gYear 1716\nset gold 1600", "set gYear 1716\nset gold 1599.9"},
      {4, "set population 200", "set population 199"},
      {5, tents(92), tents(91)},
      {6, "set gYear 1716\nset gold 1050", "set gYear 1716\nset gold 1049"},
      {7, "set population 450", "set population 449"},
      {8, "set population 900", "set population 899"},
      {9, tents(96), tents(95)},
      {10, "set gYear 1716\nset gold 2000", "set gYear 1716\nset gold 1999"},
  };
  for (const PuzzleEnd& end : ends) {
    SCOPED_TRACE(end.level);
    const bool gold = end.level == 3 || end.level == 6 || end.level == 10;
    Play play;
    play.write("config.dat", "4,9,0,0,0,0,0,0,0,0,0,0\r\n");
    play.restart();
    const std::string row = std::to_string(end.level - 1);
    for (const bool enough : {false, true}) {
      play.run("click mainnew\nclick stpuzzle\nclick Label20 " + row + "\nadvance 500");
      EXPECT_EQ(play("get gMission"), "ok " + std::to_string(19 + end.level));
      play.run(enough ? end.enough : end.tooLittle);
      // The tick of the game comes first: people who were set stay, and gold moves by nothing.
      settle(play);
      play.run("advance 1000");
      const bool over = enough || gold;
      EXPECT_EQ(play("timer Timer15"), over ? "ok on 1000" : "ok off 1000");
      if (over) {
        EXPECT_EQ(caption(play, "Command4"), enough ? "MISSION COMPLETED" : "MISSION FAILED");
        play.run("advance 1000");
        EXPECT_EQ(play("get gReturnPuzzle"), "ok 0");
        play.run("click Command23\nclick stback");
      } else {
        play.run("click gmmenu\nclick Command19");
      }
      std::string flags;
      for (int n = 1; n <= 10; ++n) flags += n == end.level && enough ? ",1" : ",0";
      EXPECT_EQ(play.file("config.dat"), "4,9" + flags + "\r\n");
    }
  }
}

}  // namespace
