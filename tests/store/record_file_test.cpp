#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <random>

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
  const auto faultOfFile = [&](const std::string& name) {
    EXPECT_EQ(readGame(folder / name, error), nullptr);
    return error;
  };
  ASSERT_TRUE(saveGame(folder / "\xC3\xA4 .sav", game->game, game->values, error)) << error;
  ASSERT_NE(readGame(folder / "\xC3\xA4 .sav", error), nullptr) << error;

  std::filesystem::create_directory(folder / "folder.sav");
  support::putFile(folder / "empty.sav", "");
  support::putFile(folder / "huge.sav", textOf(*game));
  std::filesystem::resize_file(folder / "huge.sav", std::uintmax_t{1} << 30);
  EXPECT_EQ(faultOfFile("folder.sav"), "folder.sav: is a folder");
  EXPECT_EQ(faultOfFile("huge.sav"), "huge.sav: is too large");
  EXPECT_EQ(faultOfFile("empty.sav"), "empty.sav: ends early, in line 1");
  EXPECT_TRUE(faultOfFile("missing.sav").starts_with("missing.sav: ")) << error;
  EXPECT_TRUE(faultOfFile("a\x1B\xFF.sav").starts_with("a\xEF\xBF\xBD\xEF\xBF\xBD.sav: ")) << error;
  EXPECT_FALSE(saveGame(folder / std::string(300, 'n'), game->game, game->values, error));
  EXPECT_EQ(error, std::string(100, 'n') + "...: the name is too long");
  EXPECT_FALSE(saveGame(folder / "nowhere/town.sav", game->game, game->values, error));
  EXPECT_EQ(error, "town.sav: its folder does not exist");
}

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

}  // namespace
}  // namespace store
