#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <filesystem>
#include <limits>

#include "store/progress.h"
#include "store/record.h"
#include "store/records.h"
#include "support/temp_folder.h"

namespace store {
namespace {

using core::GameState;
using support::faultOf;
using support::join;
using support::newGame;
using support::split;
using support::textOf;
using support::withField;

TEST(Record, EveryNumberIsAtItsPlacesInTheHeadAndComesBack) {
  auto record = newGame();
  GameState& g = record->game;
  // clang-format off
  core::Number* const numbers[] = {
      &g.housingCapacity, &g.population, &g.newsTicks, &g.farmAnimationOn, &g.hoverLabel,
      &g.freeWalkerSlot, &g.buildingHousing, &g.famineState, &g.roadNeighbourCount,
      &g.churchUnlocked, &g.schoolUnlocked, &g.doctorUnlocked, &g.tavernUnlocked, &g.taxPerTick,
      &g.maintenancePerTick, &g.walkersOn, &g.scratchCount, &g.cellOriginX, &g.cellOriginY,
      &g.withAccess, &g.withoutAccess, &g.ratingIndex, &g.overlayView, &g.farmCount, &g.food,
      &g.nextBuildingId, &g.constructionThisMonth, &g.marketRating, &g.churchRating,
      &g.schoolRating, &g.doctorRating, &g.tavernRating, &g.taxThisMonth, &g.maintenanceThisMonth,
      &g.maintenancePerMonth, &g.cellX, &g.cellY, &g.i, &g.j, &g.k, &g.l, &g.reachedMission,
      &g.tickOfMonth};
  // clang-format on
  int count = 202;
  for (core::Number* const number : numbers) *number = count++;
  for (int n = 1; n <= 13; ++n) g.reserved[n] = 100 + n;
  record->values.gMission = 29, record->values.gMapSize = 22, record->values.gSoundOn = 0;
  g.currentTool = 4, g.gold = -1500.25, g.month = 12, g.historyIndex = 43, g.taxRate = 30;
  g.ticksPerMonth = 34, g.monthLength = 16, g.demolishFlag = -5;
  const std::string text = textOf(*record);
  const std::string head =
      "29,4,101,-1500.25,202,203,204\r\n"
      "22,1.2,1715,12,0,205,206,207\r\n"
      "208,43,209,210,102,103,211,212,213,214\r\n"
      "215,216,34,-5\r\n"
      "217,104,-5,105,218,217,106,219,220\r\n"
      "221,222,223,224,225,226,227,107,108\r\n"
      "109,228,227,105,106,107,108,229,230,231,232,233\r\n"
      "110,234,111,235,236,112,113,110,234,111\r\n"
      ",,237,238,239,240,4,-1500.25,203,202,101,12,241,204,242,225,226,243\r\n"
      "229,230,233,232,231,209\r\n"
      "30,43,244,16\r\n";
  EXPECT_EQ(text.substr(0, head.size()), head);
  const auto back = std::make_unique<Record>();
  ASSERT_EQ(faultOf(text, *back), "");
  EXPECT_EQ(textOf(*back), text);
  *record = *back;  // the list above points into it
  count = 202;
  for (core::Number* const number : numbers) EXPECT_EQ(*number, count++);
  EXPECT_EQ(g.gold, -1500.25);
}

TEST(Record, GridsAreInTheirOrdersAndComeBackCellByCell) {
  auto record = newGame();
  GameState& g = record->game;
  g.tileCode(1, 35) = 7, g.cellServices(1, 35) = 5, g.buildingId(1, 35) = 8;
  core::coverGrid(g, 1)(1, 35) = core::coverGrid(g, 3)(2, 35) = core::coverGrid(g, 5)(3, 35) = 1;
  core::coverGrid(g, 2)(4, 35) = core::coverGrid(g, 4)(5, 35) = 1;
  g.cellTall(1, 35) = g.cellDirty(2, 35) = 1, g.cellCapacity(3, 35) = 1;
  for (int k = 1; k <= 5; ++k) {
    g.roadService[k](30, k) = 1;
    g.cellService[k](k, 30) = 1;
  }
  g.tileCode(35, 0) = 89, g.cellCapacity(35, 0) = -1.5, g.buildingId(35, 0) = 70000;
  g.tileCode(0, 1).unset(), g.cellTall(0, 1).unset(), g.buildingId(0, 1).unset();
  g.history(-4, 1) = -1, g.history(50, 18) = 2.5, g.history(3, 14) = 77, g.history(0, 2).unset();
  g.toolUnlocked[1] = 1, g.toolUnlocked[10].unset();

  const std::string text = textOf(*record);
  const auto lines = split(text);
  ASSERT_EQ(lines.size(), 11917u);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 11917);
  const auto line = [&](int number) { return lines.at(static_cast<std::size_t>(number - 1)); };
  const auto cell = [&](int x, int y) { return line(12 + 36 * x + y); };
  EXPECT_EQ(cell(1, 35), "7,0,1,0,0,0,0,5,1,0,8");
  EXPECT_EQ(cell(2, 35), "0,0,0,0,1,0,0,0,0,1,0");
  EXPECT_EQ(cell(3, 35), "0,1,0,0,0,0,1,0,0,0,0");
  EXPECT_EQ(cell(4, 35), "0,0,0,1,0,0,0,0,0,0,0");
  EXPECT_EQ(cell(5, 35), "0,0,0,0,0,1,0,0,0,0,0");
  EXPECT_EQ(cell(0, 1), ",0,0,0,0,0,0,0,,0,");
  EXPECT_EQ(cell(35, 0), "89,-1.5,0,0,0,0,0,0,0,0,70000");
  const auto history = [&](int column, int row) {
    return line(1308 + (column + 4) * 18 + row - 1);
  };
  EXPECT_EQ(history(-4, 1), "-1");
  EXPECT_EQ(history(50, 18), "2.5");
  EXPECT_EQ(history(3, 14), "77");
  EXPECT_EQ(history(0, 2), "");
  EXPECT_EQ(line(2298), "1");
  EXPECT_EQ(line(2299), "0");
  EXPECT_EQ(line(2307), "");
  for (int k = 1; k <= 5; ++k) {
    const auto layer = [&](int x, int y) { return 2308 + ((k - 1) * 961 + y * 31 + x) * 2; };
    EXPECT_EQ(line(layer(30, k)), "1");
    EXPECT_EQ(line(layer(30, k) + 1), "0");
    EXPECT_EQ(line(layer(k, 30)), "0");
    EXPECT_EQ(line(layer(k, 30) + 1), "1");
  }

  const auto back = std::make_unique<Record>();
  ASSERT_EQ(faultOf(text, *back), "");
  EXPECT_EQ(textOf(*back), text);
  EXPECT_FALSE(back->game.tileCode(0, 1).isSet());
  EXPECT_FALSE(back->game.history(0, 2).isSet());
}

TEST(Record, NumbersAreTakenInEveryFormThatPeopleWriteAndInNoOther) {
  const auto lines = split(textOf(*newGame()));
  const auto record = std::make_unique<Record>();
  for (const auto& [forms, value] : {std::pair{"5 5. 05 5E0 .5E1 0.00005e+5 500E-2 ", 5.0},
                                     {".8 0.8 8E-1 ", 0.8},
                                     {"-1.5E-03 -.0015 ", -0.0015},
                                     {"0 -0 .0 1E-999 -1E-99999999999 0E99999999999 ", 0},
                                     {"4.9E-324 ", 4.9E-324}}) {
    for (const std::string& form : split(forms, " ")) {
      EXPECT_EQ(faultOf(withField(lines, 3, 1, form), *record), "") << form;
      EXPECT_EQ(record->game.buildingHousing, value) << form;
    }
  }
  // The largest number would be too large when rounded up to fifteen digits.
  record->game.buildingHousing = std::numeric_limits<double>::max();
  EXPECT_EQ(faultOf(textOf(*record), *record), "");
  const auto fault = [&](const std::string& form) {
    return faultOf(withField(lines, 3, 1, form), *record);
  };
  const std::string start = "line 3, field 1: \"";
  for (const std::string& form :
       split("abc|nan|NaN|inf|-inf|infinity|0x10|+5| 5|5 |1.2.3|.|-|-.|--5|E5|5E|5E+|5E.5|", "|")) {
    EXPECT_EQ(fault(form), start + form + "\" is not a number");
  }
  for (const std::string& form : split("1E999|-1E309|0.1E400|1.8E308|1E99999999999|", "|")) {
    EXPECT_EQ(fault(form), start + form + "\" is too large a number");
  }
  EXPECT_EQ(fault("\x1B[2J\xFF" + std::string(9999, 'x')),
            start + "\xEF\xBF\xBD[2J\xEF\xBF\xBD" + std::string(19, 'x') + "...\" is not a number");
}

TEST(Record, OnlyTheNumberAndTheOrderOfFieldsCount) {
  const std::string text = textOf(*newGame());
  const auto lines = split(text);
  const auto record = std::make_unique<Record>();
  std::string oneLine = join(lines, ",");
  oneLine.back() = '\n';
  const std::string open = text.substr(0, text.size() - 2);  // without its last line end
  for (const std::string& other :
       {join(lines, "\n"), oneLine, open, open + '\r', text + "\r\n\n"}) {
    EXPECT_EQ(faultOf(other, *record), "");
    EXPECT_EQ(textOf(*record), text);
  }
  for (std::size_t cut = 0; cut < open.size(); cut += cut + 400 < open.size() ? 331 : 1) {
    EXPECT_TRUE(faultOf(text.substr(0, cut), *record).starts_with("ends early, in line ")) << cut;
  }
  const std::string more = ": more stands here than belongs in the file";
  for (const char* rest : {"0", "\x1A", "\r\n,"}) {
    EXPECT_EQ(faultOf(text + rest, *record), "line 11918" + more);
  }
  EXPECT_EQ(faultOf(open + ",", *record), "line 11917" + more);
  EXPECT_EQ(faultOf(join(lines, "\r"), *record), "line 1: a carriage return stands alone");
  EXPECT_TRUE(faultOf("\xEF\xBB\xBF" + text, *record).starts_with("line 1, field 1:"));
}

// Mission, size, month, history, tool, speeds, tax, demolition flag; codes, flags and service counts;
// what is there twice is checked twice.
TEST(Record, ValuesByWhichTheProgramWouldLeaveItsTablesAreRefused) {
  const auto lines = split(textOf(*newGame()));
  const auto record = std::make_unique<Record>();
  // clang-format off
  constexpr std::tuple<int, int, const char*, const char*> kCases[] = {
      {1, 1, "1,11,15,16,20,29,", ",0,12,14,17,19,30,1.5,"}, {2, 1, "4,28,18.,", ",2,30,5,4.5,-4,"},
      {2, 4, "1,12,", ",0,13,1.5,"}, {9, 12, "1,12,", ",0,13,"}, {3, 2, "1,43,", ",0,44,-1,2.5,"},
      {11, 2, "1,43,", ",0,44,"}, {1, 2, "1,10,", ",0,11,3.5,"}, {9, 7, "1,10,", ",0,11,"},
      {4, 3, "1,1000000000,", ",0,0.5,16.5,1E10,"}, {11, 4, "1,25,", ",0,-1,1E300,"},
      {11, 1, ",0,30,12.5,", "-5,35,1E308,"}, {4, 4, ",-32768,32767,", "32768,0.5,-1E9,"},
      {12, 1, ",0,6,7,11,54,81,89,", "1,10,15,55,80,90,-11,7.5,65543,"},
      {1307, 3, ",0,1,", "2,-1,0.5,257,"}, {12, 8, ",5,", "6,-1,1.5,261,"}, {12, 9, "1,", "2,"},
      {2307, 1, ",1,", "2,-1,"}, {2308, 1, ",1,", "2,0.1,"}, {11917, 1, ",1,", "2,-128,"},
      {12, 11, "1E300,-7.5,", ""}};
  // clang-format on
  for (const auto& [line, field, good, bad] : kCases) {
    for (const std::string& value : split(good, ",")) {
      EXPECT_EQ(faultOf(withField(lines, line, field, value), *record), "") << line << ":" << value;
    }
    for (const std::string& value : split(bad, ",")) {
      const std::string fault = faultOf(withField(lines, line, field, value), *record);
      EXPECT_TRUE(fault.starts_with("line " + std::to_string(line) + ": ")) << value << fault;
    }
  }
  EXPECT_EQ(faultOf(withField(lines, 2, 4, ""), *record), "line 2: no such month: (empty)");

  // Of a name that comes twice the later copy decides.
  ASSERT_EQ(faultOf(withField(lines, 1, 4, "1"), *record), "");
  EXPECT_EQ(record->game.gold, 600);
  ASSERT_EQ(faultOf(withField(lines, 9, 8, ""), *record), "");
  EXPECT_FALSE(record->game.gold.isSet());
}

TEST(Record, ApplyingItChangesWhatItHoldsAndNothingElse) {
  const auto record = newGame(), running = newGame();
  const std::string fresh = textOf(*record);
  EXPECT_EQ(split(fresh)[8], ",,,,,,8,600,0,0,0,1,,0,,0,0,");
  GameState& g = running->game;
  g.tileImage(3, 3) = 37, g.walkerX[10] = 4, g.lastPaletteTool = 1, g.scrollX = 32;
  g.tileCode(-1, 0) = 7, g.roadService[5](31, 30) = 1, g.history(5, 19) = 3;
  running->values.gNewMap = 1;
  g.gold = 5, g.cellX = 0, g.tileCode(35, 35) = 7;
  ASSERT_EQ(faultOf(fresh, *record), "");
  applyRecord(*record, g, running->values);
  EXPECT_EQ(textOf(*running), fresh) << "what was never given stays empty";
  EXPECT_EQ(g.tileImage(3, 3), 37);
  EXPECT_EQ(g.walkerX[10], 4);
  EXPECT_EQ(g.lastPaletteTool, 1);
  EXPECT_EQ(g.scrollX, 32);
  EXPECT_EQ(g.tileCode(-1, 0), 7);
  EXPECT_EQ(g.roadService[5](31, 30), 1);
  EXPECT_EQ(g.history(5, 19), 3);
  EXPECT_EQ(running->values.gNewMap, 1);
}

TEST(RecordFile, WhatCannotBeReadOrWrittenIsNamedWithWhatIsWrong) {
  const support::TempFolder folder;
  const auto game = newGame();
  std::string error;
  std::filesystem::create_directory(folder / "folder.sav");
  support::putFile(folder / "empty.sav", "");
  support::putFile(folder / "huge.sav", textOf(*game));
  std::filesystem::resize_file(folder / "huge.sav", std::uintmax_t{1} << 30);
  for (const auto& [name, fault] :
       {std::pair{"folder.sav", "folder.sav: is a folder"},
        {"huge.sav", "huge.sav: is too large"},
        {"empty.sav", "empty.sav: ends early, in line 1"},
        {"a\x1B\xFF.sav", "a\xEF\xBF\xBD\xEF\xBF\xBD.sav: "}}) {  // is missing
    EXPECT_EQ(readGame(folder / name, error), nullptr);
    EXPECT_TRUE(error.starts_with(fault)) << error;
  }
  EXPECT_FALSE(saveGame(folder / std::string(300, 'n'), game->game, game->values, error));
  EXPECT_EQ(error, std::string(100, 'n') + "...: the name is too long");
  EXPECT_FALSE(saveGame(folder / "nowhere/town.sav", game->game, game->values, error));
  EXPECT_EQ(error, "town.sav: its folder does not exist");
}

constexpr const char* kFresh = "1,0,0,0,0,0,0,0,0,0,0,0\r\n";

TEST(RecordFile, ACommaLocaleChangesNothing) {
  const support::TempFolder folder;
  support::putFile(folder / "comma",
                   "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\n"
                   "END LC_NUMERIC\n");
  // It complains of the categories that are missing, and makes the locale all the same.
  const std::string make = "localedef -c -i " + (folder / "comma") + " " + (folder / "xx_XX");
  ASSERT_NE(std::system((make + " >/dev/null 2>/dev/null").c_str()), -1);
  auto game = newGame();
  game->game.gold = 1234567.5;
  const std::string text = textOf(*game);
  const pid_t child = fork();
  if (child == 0) {
    setenv("LOCPATH", folder.path().c_str(), 1);
    char number[16];
    if (setlocale(LC_NUMERIC, "xx_XX") == nullptr) _exit(1);
    if (std::snprintf(number, sizeof number, "%.1f", .5) != 3 || number[1] != ',') _exit(2);
    const auto back = std::make_unique<Record>();
    if (textOf(*game) != text || faultOf(text, *back) != "") _exit(3);
    _exit(back->game.gold == 1234567.5 ? 0 : 4);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
}

TEST(Progress, IsOneLineOfTwelveNumbersThatAreCarriedUnchanged) {
  const support::TempFolder folder;
  Progress progress;
  std::string error;
  for (const char* text : {kFresh, "11,-2147483648,1,0,0,0,0,0,0,0,0.5,1\r\n"}) {
    support::putFile(folder / "config.dat", text);
    ASSERT_TRUE(readProgress(folder.path(), progress, error)) << error;
    ASSERT_TRUE(writeProgress(folder.path(), progress, error)) << error;
    EXPECT_EQ(support::bytesOf(folder / "config.dat"), text);
  }
  EXPECT_EQ(progress.reachedMission, 11);
  EXPECT_EQ(progress.puzzleDone[10], 1);
  // As an editor may leave it.
  for (const char* text : {"3,0,0,0,0,0,0,0,0,0,0,1", "3,0,0,0,0,0,0,0,0,0,0,1\n\r\n\n"}) {
    support::putFile(folder / "config.dat", text);
    ASSERT_TRUE(readProgress(folder.path(), progress, error)) << error;
    EXPECT_EQ(progress.reachedMission, 3);
    EXPECT_EQ(progress.puzzleDone[10], 1);
  }
}

TEST(Progress, ADamagedFileIsKeptUnderAnotherNameAndReported) {
  const support::TempFolder folder;
  int count = 0;
  const std::string tail = ",0,0,0,0,0,0,0,0,0,0", end = "\r\n";
  for (const std::string& text :
       {std::string(), "1,0" + tail + ",", "1" + tail + end, "1,0,0" + tail + end, "1" + tail,
        "1" + tail + ",", "0,0" + tail + end, "12,0" + tail + end, ",0" + tail + end,
        "1.5,0" + tail + end, "1,0.5" + tail + end, "1,2147483648" + tail + end, "1,x" + tail + end,
        "1;0" + tail + end}) {
    support::putFile(folder / "config.dat", text);
    Progress untouched;
    untouched.reachedMission = 7;
    std::string error, notice;
    EXPECT_FALSE(readProgress(folder.path(), untouched, error)) << text;
    EXPECT_TRUE(error.starts_with("config.dat: ")) << error;
    EXPECT_EQ(untouched.reachedMission, 7);

    EXPECT_TRUE(prepareProgress(folder.path(), notice)) << text;
    const std::string kept =
        ++count == 1 ? "config.dat.damaged" : "config.dat.damaged." + std::to_string(count);
    EXPECT_NE(notice.find("is kept as " + kept + ","), std::string::npos) << notice;
    EXPECT_EQ(support::bytesOf(folder / kept), text);
    EXPECT_EQ(support::bytesOf(folder / "config.dat"), kFresh);
  }
}

TEST(Progress, AMissingFileIsMadeAndReportedOnlyWhereSomebodyPlayed) {
  const support::TempFolder folder;
  std::string notice = "old";
  EXPECT_TRUE(prepareProgress(folder.path(), notice));
  EXPECT_EQ(notice, "");
  EXPECT_EQ(support::bytesOf(folder / "config.dat"), kFresh);
  std::filesystem::remove(folder / "config.dat");
  support::putFile(folder / handOverFile(10), "");
  EXPECT_TRUE(prepareProgress(folder.path(), notice));
  EXPECT_TRUE(notice.starts_with("config.dat: ")) << notice;
  EXPECT_FALSE(prepareProgress(folder / "nowhere", notice));
  EXPECT_EQ(notice, "config.dat: its folder does not exist");
}

}  // namespace
}  // namespace store
