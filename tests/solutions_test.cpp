// Every level can be won by play alone: each recorded play in docs/solutions starts at the menu,
// presses and clicks, and states at its end how it must have come out.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "shell/script_runner.h"
#include "support/temp_folder.h"

namespace {

const std::string kFolder = VELLMORAN_SOURCE_DIR "/docs/solutions/";

std::vector<std::string> solutions() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().stem());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string textOf(const std::string& name) {
  return support::bytesOf(kFolder + name + ".txt");
}

class Solution : public testing::TestWithParam<std::string> {};

TEST_P(Solution, EndsAsRecorded) {
  script::playFile(kFolder + GetParam() + ".txt");
}

INSTANTIATE_TEST_SUITE_P(Solutions, Solution, testing::ValuesIn(solutions()),
                         [](const auto& solution) { return solution.param; });

// A script that sets a value, or feeds the generators, would prove nothing.
TEST(SolutionFiles, PlayByPressesAndClicksAlone) {
  ASSERT_FALSE(solutions().empty());
  for (const std::string& name : solutions()) {
    const std::string text = "\n" + textOf(name);
    for (const char* foul : {"\nset ", "\nrandom ", "\nwalkerrandom "}) {
      EXPECT_EQ(text.find(foul), std::string::npos) << name << ": " << foul;
    }
  }
}

TEST(SolutionFiles, SolvedLevelsAreRememberedByTheNextStart) {
  script::Play play;
  for (const char* name : {"puzzle01", "puzzle09"}) play.restart(), play.run(textOf(name));
  play.restart();
  std::string solved;
  for (int i = 1; i <= 10; ++i) solved += play("get puzzleDone" + std::to_string(i)).substr(3);
  EXPECT_EQ(solved, "1000000010");
}

}  // namespace
