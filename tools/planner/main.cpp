// vellmoran-planner FOLDER [NAME]: plays the puzzle levels and open play, and writes the scripts that
// do the same again, with a picture each, into FOLDER. NAME is puzzle01 to puzzle10 or open_play.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "planner/open_play.h"
#include "planner/player.h"
#include "planner/puzzles.h"
#include "platform/program_folder.h"

namespace {

bool plan(const std::shared_ptr<shell::Assets>& assets, const std::string& folder,
          const std::string& name, void (*play)(planner::Player&, int), int level) {
  planner::Player player(assets);
  try {
    play(player, level);
  } catch (const planner::Failure& failure) {
    std::fprintf(stderr, "%s: %s\n", name.c_str(), failure.what.c_str());
    std::ofstream(folder + "/" + name + ".failed") << player.script();
    return false;
  }
  std::ofstream(folder + "/" + name + ".txt") << player.script();
  player.writePicture(folder + "/" + name + ".png");
  std::printf("%s: won after %d ticks\n", name.c_str(), player.ticksPlayed());
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::fprintf(stderr, "usage: vellmoran-planner FOLDER [NAME]\n");
    return 2;
  }
  std::string error;
  const auto assets = driver::Session::loadAssets(platform::executableFolder() + "/data", error);
  if (assets == nullptr) {
    std::fprintf(stderr, "vellmoran-planner: %s\n", error.c_str());
    return 2;
  }
  const std::string folder = std::filesystem::absolute(argv[1]);
  const std::string wanted = argc == 3 ? argv[2] : "";
  bool good = true;
  for (int level = 1; level <= planner::kPuzzles; ++level) {
    char name[32];
    std::snprintf(name, sizeof name, "puzzle%02d", level);
    if (!wanted.empty() && wanted != name) continue;
    good = plan(assets, folder, name, planner::playPuzzle, level) && good;
  }
  if (wanted.empty() || wanted == "open_play") {
    good = plan(assets, folder, "open_play", planner::playOpenPlay, 0) && good;
  }
  return good ? 0 : 1;
}
