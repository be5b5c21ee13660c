// Every script of tests/scripts is a test of its own, named after the rule it checks, and so is every
// recorded play of docs/solutions, which wins a level by play alone: it starts at the menu, presses and
// clicks, and states at its end how it must have come out.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "shell/script_runner.h"
#include "support/temp_folder.h"

namespace {

const std::string kRules = VELLMORAN_SOURCE_DIR "/tests/scripts/";
const std::string kSolutions = VELLMORAN_SOURCE_DIR "/docs/solutions/";

std::vector<std::string> scriptsIn(const std::string& folder) {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".txt") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

class Script : public testing::TestWithParam<std::string> {};

TEST_P(Script, Passes) {
  script::playFile(GetParam());
}

const auto kName = [](const auto& script) {
  return std::filesystem::path(script.param).stem().string();
};
INSTANTIATE_TEST_SUITE_P(Scripts, Script, testing::ValuesIn(scriptsIn(kRules)), kName);
INSTANTIATE_TEST_SUITE_P(Solutions, Script, testing::ValuesIn(scriptsIn(kSolutions)), kName);

// A play that sets a value, or feeds the generators, would prove nothing.
TEST(SolutionFiles, PlayByPressesAndClicksAlone) {
  ASSERT_FALSE(scriptsIn(kSolutions).empty());
  for (const std::string& path : scriptsIn(kSolutions)) {
    const std::string text = "\n" + support::bytesOf(path);
    for (const char* foul : {"\nset ", "\nrandom ", "\nwalkerrandom "}) {
      EXPECT_EQ(text.find(foul), std::string::npos) << path << ": " << foul;
    }
  }
}

TEST(SolutionFiles, SolvedLevelsAreRememberedByTheNextStart) {
  script::Play play;
  for (const char* name : {"puzzle01.txt", "puzzle09.txt"}) {
    play.restart();
    play.run(support::bytesOf(kSolutions + name));
  }
  play.restart();
  for (int i = 1; i <= 10; ++i) {
    play.run("puzzleDone" + std::to_string(i) + (i == 1 || i == 9 ? "=1" : "=0"));
  }
}

}  // namespace
