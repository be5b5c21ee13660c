// Guards the order of the layers of the source tree, and the headers and functions that only the
// platform may use.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr std::array kLayers{"platform", "core", "sim",      "map",  "store",
                             "sound",    "play", "scenario", "shell"};

int levelOf(const std::string& folder) {
  const auto found = std::find(kLayers.begin(), kLayers.end(), folder);
  return found == kLayers.end() ? -1 : static_cast<int>(found - kLayers.begin());
}

// Headers of services that belong to the platform, or whose results differ between machines.
constexpr const char* kPlatformOnly =
    " iostream fstream sstream istream ostream iomanip thread mutex future atomic locale "
    "filesystem "
    "condition_variable regex random chrono ctime clocale time.h locale.h math.h unistd.h dirent.h "
    "fcntl.h png.h ft2build.h ";

// Functions of the mathematics library whose last bit is not the same everywhere, and those that round
// halves away from zero, which is the rule nowhere.
constexpr const char* kInexact =
    " sin cos tan asin acos atan atan2 sinh cosh tanh exp exp2 expm1 log log2 log10 pow cbrt log1p "
    "fma hypot round lround ";

bool holds(const std::string& list, const std::string& word) {
  return list.find(" " + word + " ") != std::string::npos;
}

bool callsInexact(const std::string& line) {
  constexpr const char* kWord = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
  const std::string code = line.substr(0, line.find("//"));
  for (std::size_t at = code.find('('); at != std::string::npos; at = code.find('(', at + 1)) {
    const std::string before = code.substr(0, at);
    if (holds(kInexact, before.substr(before.find_last_not_of(kWord) + 1))) return true;
  }
  return false;
}

// What is wrong with the include of `header` in `file` (a path below src/); empty when nothing is.
std::string faultOf(const std::string& file, const std::string& header, bool ofProject) {
  const int level = levelOf(file.substr(0, file.find('/')));
  if (level < 0) return "is in no layer";
  if (!ofProject) {
    if (header.starts_with("SDL") && !file.starts_with("platform/sdl/")) {
      return "only platform/sdl/ talks to SDL";
    }
    const bool kept = holds(kPlatformOnly, header) || header.starts_with("sys/");
    return level > 0 && kept ? "belongs below, in platform/" : "";
  }
  const int used = levelOf(header.substr(0, header.find('/')));
  if (used < 0) return "includes name their layer first";
  if (used > level) return "a layer never calls up";
  for (const char* realisation :
       {"platform/desktop/", "platform/sdl/", "platform/browser/", "platform/virtual/"}) {
    if (header.starts_with(realisation) && !file.starts_with(realisation) &&
        file != "shell/main.cpp" && file != "shell/browser_main.cpp") {
      return "realisations are chosen in the mains";
    }
  }
  return "";
}

TEST(Layers, EveryIncludeKeepsTheOrder) {
  const fs::path root = fs::path(VELLMORAN_SOURCE_DIR) / "src";
  int includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const std::string suffix = entry.path().extension();
    if (suffix != ".h" && suffix != ".cpp") continue;
    const std::string file = fs::relative(entry.path(), root).generic_string();
    std::ifstream source(entry.path());
    std::string line;
    for (int number = 1; std::getline(source, line); ++number) {
      const std::size_t open = line.find_first_of("<\"");
      if (line.starts_with("#include") && open != std::string::npos) {
        ++includes;
        const std::size_t close = line.find_first_of(">\"", open + 1);
        const std::string header = line.substr(open + 1, close - open - 1);
        EXPECT_EQ(faultOf(file, header, line[open] == '"'), "") << file << ":" << number;
      } else if (!file.starts_with("platform/")) {
        EXPECT_FALSE(callsInexact(line)) << file << ":" << number << ": " << line;
      }
    }
  }
  EXPECT_GT(includes, 50);
}

TEST(Layers, TheGuardSeesWhatItGuardsAgainst) {
  for (const auto& [file, header] : {std::pair{"core/grid.h", "sim/coverage.h"},
                                     {"map/renderer.cpp", "platform/sdl/sdl_clock.h"},
                                     {"play/cursor.cpp", "cursor.h"}}) {
    EXPECT_NE(faultOf(file, header, true), "") << file;
  }
  EXPECT_NE(faultOf("sim/month.cpp", "fstream", false), "");
  EXPECT_NE(faultOf("platform/font.cpp", "SDL.h", false), "");
  EXPECT_TRUE(callsInexact("  const double x = 2 * std::pow(a, b);"));
  EXPECT_FALSE(callsInexact("  x = std::floor(a);  // not pow(a)"));
}

}  // namespace
