// The folder of a playable game holds what the game and its texts speak of.
#include <gtest/gtest.h>

#include <regex>

#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;

TEST(GameFolder, HoldsTheTextsThatTheGameSpeaksOfAndKeepsWhatThePlayerHas) {
  const support::TempFolder build, game;
  fs::create_directory(build / "data");
  support::putFile(build / "data/new", "");
  support::putFile(build / "vellmoran", "");
  fs::create_directory(game / "data");
  support::putFile(game / "data/old", "");
  support::putFile(game / "town.sav", "town");
  const std::string command = VELLMORAN_SOURCE_DIR "/packaging/put-together ";
  for (int time = 1; time <= 2; ++time) {
    ASSERT_EQ(std::system((command + build.path() + " " + game.path()).c_str()), 0);
  }
  EXPECT_EQ(support::bytesOf(game / "town.sav"), "town");
  EXPECT_TRUE(fs::exists(game / "data/new") && !fs::exists(game / "data/old"));

  // Links, and files that are named in the text.
  const std::regex named(R"(\]\(([^)]+)\)|`(docs/[\w.]+)`)");
  for (const std::string text :
       {"README.md", "docs/solutions.md", "docs/rules.md", "docs/manual/manual.md"}) {
    const std::string bytes = support::bytesOf(game / text);
    EXPECT_NE(bytes, "(missing)") << text;
    for (std::sregex_iterator at(bytes.begin(), bytes.end(), named), end; at != end; ++at) {
      const bool link = (*at)[1].matched;
      const fs::path base = link ? fs::path(game / text).parent_path() : fs::path(game.path());
      const std::string to = link ? (*at)[1] : (*at)[2];
      EXPECT_TRUE(fs::exists(base / to)) << text << " speaks of " << to;
    }
  }
}

}  // namespace
