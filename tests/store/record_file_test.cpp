#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <random>

#include "store/records.h"
#include "support/temp_folder.h"

namespace store {
namespace {

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

}  // namespace
}  // namespace store
