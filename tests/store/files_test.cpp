#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <random>

#include "store/progress.h"
#include "store/records.h"
#include "support/temp_folder.h"

namespace store {
namespace {

using support::faultOf;
using support::newGame;
using support::textOf;

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

TEST(RecordFile, AWriterKilledAtAnyMomentLeavesAGameThatLoads) {
  const support::TempFolder folder;
  const std::string place = folder / "town.sav";
  const auto game = newGame();
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
    usleep(static_cast<useconds_t>(moments() % 15000));
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
  // The kills came where they hurt: some before a new file stood, some within a save.
  EXPECT_GT(advances, 0);
  EXPECT_GT(drafts, 0);
  ASSERT_TRUE(saveGame(place, game->game, game->values, error)) << error;
  EXPECT_EQ(folder.entries(), 1);
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
  EXPECT_EQ(progress.reachedMission + progress.puzzleDone[10], 12);
  // As an editor may leave it.
  for (const char* text : {"3,0,0,0,0,0,0,0,0,0,0,1", "3,0,0,0,0,0,0,0,0,0,0,1\n\r\n\n"}) {
    support::putFile(folder / "config.dat", text);
    ASSERT_TRUE(readProgress(folder.path(), progress, error)) << error;
    EXPECT_EQ(progress.reachedMission + progress.puzzleDone[10], 4);
  }
}

TEST(Progress, ADamagedFileIsKeptUnderAnotherNameAndTold) {
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

TEST(Progress, AMissingFileIsMadeAndToldOfOnlyWhereSomebodyPlayed) {
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
