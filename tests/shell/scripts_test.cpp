// Every script of tests/scripts is a test of its own, named after the rule it checks.
#include <gtest/gtest.h>

#include <filesystem>

#include "shell/script_runner.h"

namespace {

std::vector<std::string> scripts() {
  std::vector<std::string> names;
  for (const auto& entry :
       std::filesystem::directory_iterator(VELLMORAN_SOURCE_DIR "/tests/scripts")) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().stem());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class Script : public testing::TestWithParam<std::string> {};

TEST_P(Script, Passes) {
  script::playFile(VELLMORAN_SOURCE_DIR "/tests/scripts/" + GetParam() + ".txt");
}

INSTANTIATE_TEST_SUITE_P(Scripts, Script, testing::ValuesIn(scripts()),
                         [](const auto& script) { return script.param; });

}  // namespace
