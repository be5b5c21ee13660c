// The source tree is read from the bottom up; this guards the order of its layers and what the
// layers above the platform keep their hands off.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr std::array kLayers{"platform", "core", "sim",      "map",  "store",
                             "sound",    "play", "scenario", "shell"};

int levelOf(const std::string& folder) {
  const auto found = std::find(kLayers.begin(), kLayers.end(), folder);
  return found == kLayers.end() ? -1 : static_cast<int>(found - kLayers.begin());
}

// What is wrong with the include of `header` in `file` (a path below src/); empty when nothing is.
std::string faultOf(const std::string& file, const std::string& header, bool ofProject) {
  const int level = levelOf(file.substr(0, file.find('/')));
  const bool entry = file == "shell/main.cpp";
  if (level < 0) return "lies in no layer";
  if (!ofProject) {
    static const std::regex sdl("SDL.*");
    static const std::regex kept(
        "iostream|fstream|sstream|istream|ostream|iomanip|thread|mutex|future|condition_variable|"
        "atomic|filesystem|locale|clocale|locale\\.h|regex|random|chrono|ctime|time\\.h|unistd\\.h|"
        "fcntl\\.h|dirent\\.h|sys/.*|ft2build\\.h|png\\.h|math\\.h");
    if (std::regex_match(header, sdl) && !file.starts_with("platform/sdl/")) {
      return "only platform/sdl/ talks to SDL";
    }
    if (level > 0 && std::regex_match(header, kept)) return "belongs below, in platform/";
    return "";
  }
  const int used = levelOf(header.substr(0, header.find('/')));
  if (used < 0) return "includes name their layer first";
  if (used > level) return "a layer never calls up";
  for (const char* realisation : {"platform/sdl/", "platform/virtual/"}) {
    if (header.starts_with(realisation) && !file.starts_with(realisation) && !entry) {
      return "realisations are chosen in the mains";
    }
  }
  return "";
}

TEST(Layers, EveryIncludeKeepsTheOrderOfTheHouse) {
  const fs::path root = fs::path(VELLMORAN_SOURCE_DIR) / "src";
  const std::regex include("^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"].*");
  // Only the exact functions of the mathematics library give the same city everywhere.
  const std::regex inexact(
      "\\b(sin|cos|tan|asin|acos|atan|atan2|sinh|cosh|tanh|exp|exp2|expm1|log|log2|log10|log1p|pow|"
      "cbrt|hypot|fma)f?\\s*\\(.*");
  int includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const std::string suffix = entry.path().extension();
    if (suffix != ".h" && suffix != ".cpp") continue;
    const std::string file = fs::relative(entry.path(), root).generic_string();
    std::ifstream source(entry.path());
    std::string line;
    for (int number = 1; std::getline(source, line); ++number) {
      std::smatch match;
      if (std::regex_match(line, match, include)) {
        ++includes;
        const std::string fault = faultOf(file, match[2], match[1] == "\"");
        EXPECT_EQ(fault, "") << file << ":" << number << ": " << line;
      } else if (!file.starts_with("platform/")) {
        const std::string code = line.substr(0, line.find("//"));
        EXPECT_FALSE(std::regex_search(code, inexact)) << file << ":" << number << ": " << line;
      }
    }
  }
  EXPECT_GT(includes, 50);
}

TEST(Layers, TheGuardSeesWhatItGuardsAgainst) {
  EXPECT_NE(faultOf("core/grid.h", "sim/coverage.h", true), "");
  EXPECT_NE(faultOf("sim/month.cpp", "fstream", false), "");
  EXPECT_NE(faultOf("map/renderer.cpp", "platform/sdl/sdl_clock.h", true), "");
  EXPECT_NE(faultOf("shell/menu.cpp", "platform/virtual/virtual_clock.h", true), "");
  EXPECT_NE(faultOf("platform/font.cpp", "SDL.h", false), "");
  EXPECT_NE(faultOf("play/cursor.cpp", "cursor.h", true), "");
  EXPECT_EQ(faultOf("shell/main.cpp", "platform/sdl/sdl_clock.h", true), "");
  EXPECT_EQ(faultOf("sim/month.cpp", "core/game.h", true), "");
}

}  // namespace
