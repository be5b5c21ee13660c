#include "store/record.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <clocale>
#include <cmath>
#include <filesystem>
#include <limits>
#include <random>

#include "store/records.h"
#include "support/temp_folder.h"

namespace store {
namespace {

using core::GameState;
using core::Number;
using support::faultOf;
using support::line;
using support::newGame;
using support::split;
using support::textOf;
using support::withField;

TEST(Record, EveryNumberStandsAtItsPlaceInTheHeadAndComesBackFromThere) {
  auto record = newGame();
  GameState& g = record->game;
  const std::vector<Number*> numbers{&g.housingCapacity,
                                     &g.population,
                                     &g.newsTicks,
                                     &g.farmAnimationOn,
                                     &g.hoverLabel,
                                     &g.freeWalkerSlot,
                                     &g.buildingHousing,
                                     &g.famineState,
                                     &g.roadNeighbourCount,
                                     &g.churchUnlocked,
                                     &g.schoolUnlocked,
                                     &g.doctorUnlocked,
                                     &g.tavernUnlocked,
                                     &g.taxPerTick,
                                     &g.maintenancePerTick,
                                     &g.walkersOn,
                                     &g.scratchCount,
                                     &g.cellOriginX,
                                     &g.cellOriginY,
                                     &g.withAccess,
                                     &g.withoutAccess,
                                     &g.ratingIndex,
                                     &g.overlayView,
                                     &g.farmCount,
                                     &g.food,
                                     &g.nextBuildingId,
                                     &g.constructionThisMonth,
                                     &g.marketRating,
                                     &g.churchRating,
                                     &g.schoolRating,
                                     &g.doctorRating,
                                     &g.tavernRating,
                                     &g.taxThisMonth,
                                     &g.maintenanceThisMonth,
                                     &g.maintenancePerMonth,
                                     &g.cellX,
                                     &g.cellY,
                                     &g.i,
                                     &g.j,
                                     &g.k,
                                     &g.l,
                                     &g.reachedMission,
                                     &g.tickOfMonth};
  for (std::size_t n = 0; n < numbers.size(); ++n) *numbers[n] = 202 + static_cast<int>(n);
  for (int n = 1; n <= 13; ++n) g.reserved[n] = 100 + n;
  record->values.gMission = 29, record->values.gMapSize = 22, record->values.gSoundOn = 0;
  g.currentTool = 4, g.gold = -1500.25, g.month = 12, g.historyIndex = 43, g.taxRate = 30;
  g.ticksPerMonth = 34, g.monthLength = 16, g.demolishFlag = -5;
  const auto lines = split(textOf(*record));
  EXPECT_EQ(line(lines, 1), "29,4,101,-1500.25,202,203,204");
  EXPECT_EQ(line(lines, 2), "22,1.2,1715,12,0,205,206,207");
  EXPECT_EQ(line(lines, 3), "208,43,209,210,102,103,211,212,213,214");
  EXPECT_EQ(line(lines, 4), "215,216,34,-5");
  EXPECT_EQ(line(lines, 5), "217,104,-5,105,218,217,106,219,220");
  EXPECT_EQ(line(lines, 6), "221,222,223,224,225,226,227,107,108");
  EXPECT_EQ(line(lines, 7), "109,228,227,105,106,107,108,229,230,231,232,233");
  EXPECT_EQ(line(lines, 8), "110,234,111,235,236,112,113,110,234,111");
  EXPECT_EQ(line(lines, 9), ",,237,238,239,240,4,-1500.25,203,202,101,12,241,204,242,225,226,243");
  EXPECT_EQ(line(lines, 10), "229,230,233,232,231,209");
  EXPECT_EQ(line(lines, 11), "30,43,244,16");

  const auto back = std::make_unique<Record>();
  ASSERT_EQ(faultOf(textOf(*record), *back), "");
  *record = *back;  // the list above points into it
  for (std::size_t n = 0; n < numbers.size(); ++n)
    EXPECT_EQ(*numbers[n], 202 + static_cast<int>(n));
  EXPECT_EQ(g.reserved[13], 113);
  EXPECT_FALSE(g.reserved[14].isSet() || g.reserved[15].isSet());
  EXPECT_EQ(g.gold, -1500.25);
  EXPECT_EQ(g.demolishFlag, -5);
  EXPECT_EQ(record->values.gMission, 29);
  EXPECT_EQ(record->values.gFertility, 1.2);
}

TEST(Record, GridsStandInTheirOrdersAndComeBackCellByCell) {
  auto record = newGame();
  GameState& g = record->game;
  for (int k = 1; k <= 5; ++k) {
    core::coverGrid(g, k)(k, 35) = 1;
    g.roadService[k](30, k) = 1;
    g.cellService[k](k, 30) = 1;
  }
  g.cellTall(6, 35) = 1, g.cellDirty(7, 35) = 1, g.cellServices(8, 35) = 5;
  g.tileCode(35, 0) = 89, g.cellCapacity(35, 0) = -1.5, g.buildingId(35, 0) = 70000;
  g.tileCode(0, 1).unset(), g.cellTall(0, 1).unset(), g.buildingId(0, 1).unset();
  g.history(-4, 1) = -1, g.history(50, 18) = 2.5, g.history(3, 14) = 77, g.history(0, 2).unset();
  g.toolUnlocked[1] = 1, g.toolUnlocked[10].unset();

  const std::string text = textOf(*record);
  const auto lines = split(text);
  ASSERT_EQ(lines.size(), 11917u);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), 11917);
  const auto cell = [&](int x, int y) { return line(lines, 12 + 36 * x + y); };
  EXPECT_EQ(cell(0, 0), "0,0,0,0,0,0,0,0,0,0,0");
  EXPECT_EQ(cell(0, 1), ",0,0,0,0,0,0,0,,0,");
  EXPECT_EQ(cell(1, 35), "0,0,1,0,0,0,0,0,0,0,0");
  EXPECT_EQ(cell(2, 35), "0,0,0,1,0,0,0,0,0,0,0");
  EXPECT_EQ(cell(3, 35), "0,0,0,0,1,0,0,0,0,0,0");
  EXPECT_EQ(cell(4, 35), "0,0,0,0,0,1,0,0,0,0,0");
  EXPECT_EQ(cell(5, 35), "0,0,0,0,0,0,1,0,0,0,0");
  EXPECT_EQ(cell(6, 35), "0,0,0,0,0,0,0,0,1,0,0");
  EXPECT_EQ(cell(7, 35), "0,0,0,0,0,0,0,0,0,1,0");
  EXPECT_EQ(cell(8, 35), "0,0,0,0,0,0,0,5,0,0,0");
  EXPECT_EQ(cell(35, 0), "89,-1.5,0,0,0,0,0,0,0,0,70000");
  const auto history = [&](int column, int row) {
    return line(lines, 1308 + (column + 4) * 18 + row - 1);
  };
  EXPECT_EQ(history(-4, 1) + history(50, 18) + history(3, 14) + history(0, 2), "-12.577");
  EXPECT_EQ(line(lines, 2298) + line(lines, 2299) + line(lines, 2307), "10");
  for (int k = 1; k <= 5; ++k) {
    const auto layer = [&](int x, int y) { return 2308 + ((k - 1) * 961 + y * 31 + x) * 2; };
    EXPECT_EQ(line(lines, layer(30, k)) + line(lines, layer(30, k) + 1), "10");
    EXPECT_EQ(line(lines, layer(k, 30)) + line(lines, layer(k, 30) + 1), "01");
  }

  const auto back = std::make_unique<Record>();
  ASSERT_EQ(faultOf(text, *back), "");
  EXPECT_EQ(textOf(*back), text);
  EXPECT_EQ(back->game.tileCode(35, 0), 89);
  EXPECT_EQ(back->game.tavernCover(3, 35), 1);
  EXPECT_EQ(back->game.cellService[5](5, 30), 1);
  EXPECT_EQ(back->game.history(3, 14), 77);
  EXPECT_FALSE(back->game.tileCode(0, 1).isSet() || back->game.history(0, 2).isSet() ||
               back->game.toolUnlocked[10].isSet());
}

TEST(Record, WhatWasNeverGivenStaysEmptyUntilItIsGiven) {
  auto record = newGame();
  const auto fresh = split(textOf(*record));
  EXPECT_EQ(line(fresh, 2), "18,1.2,1715,1,1,1,0,0");
  EXPECT_EQ(line(fresh, 9), ",,,,,,8,600,0,0,0,1,,0,,0,0,");
  const auto back = std::make_unique<Record>();
  ASSERT_EQ(faultOf(textOf(*record), *back), "");
  applyRecord(*back, record->game, record->values);
  EXPECT_EQ(textOf(*record), support::join(fresh));
  EXPECT_EQ(record->game.cellX, 0);
  record->game.cellX = 0;
  EXPECT_EQ(line(split(textOf(*record)), 9), ",,0,,,,8,600,0,0,0,1,,0,,0,0,");
}

TEST(Record, NumbersAreTakenInEveryFormThatPeopleWriteAndInNoOther) {
  const auto lines = split(textOf(*newGame()));
  const auto record = std::make_unique<Record>();
  const struct {
    const char* form;
    double value;
  } good[] = {{"5", 5},
              {"-5", -5},
              {".8", 0.8},
              {"0.8", 0.8},
              {"5.", 5},
              {"1.5E-03", .0015},
              {"1e2", 100},
              {"-.5E+1", -5},
              {"007", 7},
              {"-0", 0},
              {"1E-999", 0},
              {"0E99999999999", 0},
              {"4.9E-324", 4.9E-324},
              {"0.00001E5", 1},
              {"-0.00E-99999999999", 0}};
  for (const auto& [form, value] : good) {
    EXPECT_EQ(faultOf(withField(lines, 3, 1, form), *record), "") << form;
    EXPECT_EQ(record->game.buildingHousing, value) << form;
    EXPECT_TRUE(record->game.buildingHousing.isSet());
  }
  for (const char* form :
       {"abc",   "nan", "NaN", "inf", "-inf", "infinity", "0x10", "+5",  " 5",    "5 ",
        "1.2.3", ".",   "-",   "-.",  "--5",  "E5",       "5E",   "5E+", "5E1.5", "1'000"}) {
    EXPECT_EQ(faultOf(withField(lines, 3, 1, form), *record),
              "line 3, field 1: \"" + std::string(form) + "\" is not a number");
  }
  for (const char* form : {"1E999", "-1E309", "0.1E400", "1.8E308", "1E99999999999"}) {
    EXPECT_EQ(faultOf(withField(lines, 3, 1, form), *record),
              "line 3, field 1: \"" + std::string(form) + "\" is too large a number");
  }
  const std::string wild =
      faultOf(withField(lines, 3, 1, "\x1B[2J\xFF" + std::string(9999, 'x')), *record);
  EXPECT_EQ(
      wild,
      "line 3, field 1: \"\xEF\xBF\xBD[2J\xEF\xBF\xBDxxxxxxxxxxxxxxxxxxx...\" is not a number");
}

TEST(Record, NumbersGoOutWithFifteenDigitsAndCanAlwaysBeReadBack) {
  auto record = newGame();
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    double value;
    const char* form;
  } cases[] = {{1.0 / 3, "0.333333333333333"},
               {1e15, "1E+15"},
               {-0.0, "0"},
               {0.000015, "1.5E-05"},
               {infinity, ""},
               {std::nan(""), ""},
               {std::numeric_limits<double>::max(), "1.79769313486231E+308"},
               {-std::numeric_limits<double>::max(), "-1.79769313486231E+308"}};
  for (const auto& [value, form] : cases) {
    record->game.buildingHousing = value;
    const std::string text = textOf(*record);
    EXPECT_EQ(split(text)[2][0], form);
    EXPECT_EQ(faultOf(text, *std::make_unique<Record>()), "");
  }
}

TEST(Record, OnlyTheNumberAndTheOrderOfFieldsCount) {
  const std::string text = textOf(*newGame());
  const auto lines = split(text);
  const auto record = std::make_unique<Record>();
  std::string oneLine = support::join(lines, ",");
  oneLine.back() = '\n';
  for (const std::string& other : {support::join(lines, "\n"), oneLine}) {
    EXPECT_EQ(faultOf(other, *record), "");
    EXPECT_EQ(textOf(*record), text);
  }
  for (std::size_t cut = 0; cut < text.size(); cut += cut + 41 < text.size() ? 331 : 1) {
    EXPECT_TRUE(faultOf(text.substr(0, cut), *record).starts_with("ends early, in line ")) << cut;
  }
  EXPECT_EQ(faultOf(text.substr(0, text.size() - 1), *record), "ends early, in line 11917");
  const std::string more = ": more stands here than belongs in the file";
  for (const char* rest : {"\r\n", "0\r\n", " ", "0", "\x1A"}) {
    EXPECT_EQ(faultOf(text + rest, *record), "line 11918" + more);
  }
  EXPECT_EQ(faultOf(text.substr(0, text.size() - 2) + ",0\r\n", *record), "line 11917" + more);
  EXPECT_EQ(faultOf("\xEF\xBB\xBF" + text, *record).substr(0, 16), "line 1, field 1:");
  EXPECT_EQ(faultOf(support::join(lines, "\r"), *record), "line 1: a carriage return stands alone");
  // One field less shifts all the others, until a code or the end does not fit.
  auto fewer = lines;
  fewer[4].pop_back();
  EXPECT_NE(faultOf(support::join(fewer), *record), "");
}

TEST(Record, ValuesByWhichTheProgramWouldLeaveItsTablesAreRefused) {
  const auto lines = split(textOf(*newGame()));
  const auto record = std::make_unique<Record>();
  const struct {
    int line, field;
    std::vector<std::string> good, bad;
  } cases[] = {
      {1, 1, {"1", "10", "15", "16", "20", "29"}, {"", "0", "11", "14", "17", "19", "30", "1.5"}},
      {2, 1, {"4", "28", "18."}, {"", "2", "30", "5", "4.5", "-4"}},
      {2, 4, {"1", "12"}, {"", "0", "13", "1.5"}},
      {9, 12, {"1", "12"}, {"", "0", "13", "1.5"}},
      {3, 2, {"1", "43"}, {"", "0", "44", "-1", "2.5"}},
      {11, 2, {"1", "43"}, {"", "0", "44"}},
      {1, 2, {"1", "10"}, {"", "0", "11", "3.5"}},
      {9, 7, {"1", "10"}, {"", "0", "11"}},
      {4, 3, {"1", "1000000000"}, {"", "0", "0.5", "16.5", "1E10"}},
      {11, 4, {"1", "25"}, {"", "0", "-1", "1E300"}},
      {11, 1, {"", "0", "30", "12.5"}, {"-5", "35", "1E308"}},
      {4, 4, {"", "-32768", "32767"}, {"32768", "0.5", "-1E9"}},
      {12,
       1,
       {"", "0", "6", "7", "11", "54", "81", "89"},
       {"1", "10", "15", "55", "80", "90", "-11", "7.5", "65543"}},
      {1307, 3, {"", "0", "1"}, {"2", "-1", "0.5", "257"}},
      {12, 8, {"", "5"}, {"6", "-1", "1.5", "261"}},
      {12, 10, {"1"}, {"2"}},
      {2307, 1, {"", "1"}, {"2", "-1"}},
      {2308, 1, {"", "1"}, {"2", "0.1"}},
      {11917, 1, {"", "1"}, {"2", "-128"}},
      {12, 2, {"1E300", "-7.5"}, {}},
      {12, 11, {"1E300", "-7.5"}, {}},
      {6, 4, {"99", "-1E300"}, {}},
  };
  for (const auto& [line, field, good, bad] : cases) {
    for (const std::string& value : good) {
      EXPECT_EQ(faultOf(withField(lines, line, field, value), *record), "") << line << ":" << value;
    }
    for (const std::string& value : bad) {
      const std::string fault = faultOf(withField(lines, line, field, value), *record);
      EXPECT_TRUE(fault.starts_with("line " + std::to_string(line) + ": ")) << value << fault;
    }
  }
  EXPECT_EQ(faultOf(withField(lines, 2, 1, "3"), *record), "line 2: no such map size: 3");
  EXPECT_EQ(faultOf(withField(lines, 2, 4, ""), *record), "line 2: no such month: (empty)");
}

TEST(Record, TheLaterCopyOfANameDecides) {
  const auto lines = split(textOf(*newGame()));
  const auto record = std::make_unique<Record>();
  ASSERT_EQ(faultOf(withField(lines, 1, 4, "1"), *record), "");
  EXPECT_EQ(record->game.gold, 600);
  ASSERT_EQ(faultOf(withField(lines, 9, 8, "2"), *record), "");
  EXPECT_EQ(record->game.gold, 2);
  ASSERT_EQ(faultOf(withField(lines, 9, 8, ""), *record), "");
  EXPECT_FALSE(record->game.gold.isSet());
}

TEST(Record, ApplyingItChangesWhatItHoldsAndNothingElse) {
  const auto record = newGame(), running = newGame();
  GameState& g = running->game;
  g.tileImage(3, 3) = 37, g.walkerX[10] = 4, g.lastPaletteTool = 1, g.musicTrack = 5;
  g.quakeShakeTicks = 9, g.scrollX = 32, running->values.gNewMap = 1;
  g.tileCode(-1, 0) = 7, g.tileCode(36, 36) = 7, g.roadService[5](31, 30) = 1;
  g.history(51, 1) = 3, g.history(5, 19) = 3;
  g.gold = 5, g.cellX = 8, g.tileCode(35, 35) = 7;
  record->game.newsTicks = 11;
  applyRecord(*record, g, running->values);
  EXPECT_EQ(textOf(*running), textOf(*record));
  EXPECT_FALSE(g.cellX.isSet());
  EXPECT_EQ(g.tileCode(35, 35), 0);
  EXPECT_EQ(g.newsTicks, 11);
  EXPECT_EQ(g.tileImage(3, 3), 37);
  EXPECT_EQ(g.walkerX[10] + g.lastPaletteTool + g.musicTrack + g.quakeShakeTicks + g.scrollX, 51);
  EXPECT_EQ(running->values.gNewMap, 1);
  EXPECT_EQ(g.tileCode(-1, 0) + g.tileCode(36, 36) + g.roadService[5](31, 30), 15);
  EXPECT_EQ(g.history(51, 1) + g.history(5, 19), 6);
}

TEST(Record, AFileThatCannotBeTakenIsNamedWithWhatIsWrong) {
  const support::TempFolder folder;
  const auto game = newGame();
  std::string error;
  const auto faultOfFile = [&](const std::string& name) {
    error.clear();
    EXPECT_EQ(readGame(folder / name, error), nullptr);
    return error;
  };
  ASSERT_TRUE(saveGame(folder / "\xC3\xA4 .sav", game->game, game->values, error)) << error;
  ASSERT_NE(readGame(folder / "\xC3\xA4 .sav", error), nullptr) << error;

  std::filesystem::create_directory(folder / "folder.sav");
  support::putFile(folder / "huge.sav", textOf(*game));
  std::filesystem::resize_file(folder / "huge.sav", std::uintmax_t{1} << 30);
  support::putFile(folder / "empty.sav", "");
  EXPECT_EQ(faultOfFile("folder.sav"), "folder.sav: is a folder");
  EXPECT_EQ(faultOfFile("huge.sav"), "huge.sav: is too large");
  EXPECT_EQ(faultOfFile("empty.sav"), "empty.sav: ends early, in line 1");
  EXPECT_TRUE(faultOfFile("missing.sav").starts_with("missing.sav: ")) << error;
  EXPECT_TRUE(faultOfFile("a\x1B\xFF.sav").starts_with("a\xEF\xBF\xBD\xEF\xBF\xBD.sav: ")) << error;
  const std::string longName(300, 'n');
  EXPECT_FALSE(saveGame(folder / longName, game->game, game->values, error));
  EXPECT_EQ(error, std::string(100, 'n') + "...: the name is too long");
  EXPECT_FALSE(saveGame(folder / "nowhere/town.sav", game->game, game->values, error));
  EXPECT_EQ(error, "town.sav: its folder does not exist");
}

TEST(Record, ACommaLocaleChangesNothing) {
  const support::TempFolder folder;
  support::putFile(folder / "comma",
                   "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\n"
                   "grouping 3;3\nEND LC_NUMERIC\n");
  // It warns of the missing categories and makes the locale all the same.
  const std::string make = "localedef -c -i " + (folder / "comma") + " " + (folder / "xx_XX");
  ASSERT_NE(std::system((make + " 2>/dev/null >/dev/null").c_str()), -1);
  auto game = newGame();
  game->game.gold = 1234567.5;
  const std::string text = textOf(*game);
  const pid_t child = fork();
  if (child == 0) {
    setenv("LOCPATH", folder.path().c_str(), 1);
    setenv("LC_ALL", "xx_XX", 1);
    char number[16];
    if (setlocale(LC_NUMERIC, "xx_XX") == nullptr) _exit(1);
    if (std::snprintf(number, sizeof number, "%.1f", .5) != 3 || number[1] != ',') _exit(2);
    if (textOf(*game) != text) _exit(3);
    const auto back = std::make_unique<Record>();
    if (faultOf(text, *back) != "" || back->game.gold != 1234567.5) _exit(4);
    _exit(faultOf(withField(split(text), 1, 4, "1,5"), *back) != "" ? 0 : 5);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
}

TEST(Record, AWriterKilledAtAnyMomentLeavesAGameThatLoads) {
  const support::TempFolder folder;
  const std::string place = folder / "town.sav";
  auto game = newGame();
  std::string error;
  ASSERT_TRUE(saveGame(place, game->game, game->values, error)) << error;
  std::minstd_rand moments(7);
  double saved = 600;
  int advances = 0, drafts = 0;
  for (int kills = 0; kills < 200; ++kills) {
    const pid_t child = fork();
    if (child == 0) {
      for (;;) {
        game->game.gold += 1;
        if (!saveGame(place, game->game, game->values, error)) _exit(1);
      }
    }
    usleep(moments() % 15000);
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    const auto loaded = readGame(place, error);
    ASSERT_NE(loaded, nullptr) << error;
    advances += loaded->game.gold != saved;
    drafts += folder.entries() > 1;
    saved = loaded->game.gold;
  }
  // The kills came where they hurt: within a save, and behind one.
  EXPECT_GT(advances, 0);
  EXPECT_GT(drafts, 0);
  ASSERT_TRUE(saveGame(place, game->game, game->values, error)) << error;
  EXPECT_EQ(folder.entries(), 1);
}

}  // namespace
}  // namespace store
