#include "scenario/puzzles.h"

#include <array>

#include "core/goals.h"
#include "core/number_text.h"
#include "core/vocabulary.h"
#include "scenario/outcome.h"

namespace scenario {

namespace {

using play::Scene;
namespace ui = play::ui;
namespace timer = play::timer;
using Kind = Puzzle::Kind;

constexpr int kGoldYear = 1716;  // gold is counted when the first year is over

// clang-format off
constexpr std::array<Puzzle, 10> kTable{{
    // row           side  gold   kind             goal
    {"Mission 1",      4,  2000,  Kind::people,      60},
    {"Mission 2",     10,  2000,  Kind::residences,  22},
    {"Mission 3",      8,   300,  Kind::gold,      1600},
    {"Mission 4",      6,  2000,  Kind::people,     200},
    {"Mission 5",     10,  2000,  Kind::residences,  23},
    {"Mission 6",      6,   300,  Kind::gold,      1050},
    {"Mission 7",      8,  2000,  Kind::people,     450},
    {"Mission 8",     10,  2000,  Kind::people,     900},
    {"Mission 9",     10,  2000,  Kind::residences,  24},
    {" Mission 10",    8,   300,  Kind::gold,      2000},
}};
// clang-format on

void endLevel(Scene& scene, const char* outcome) {
  endRun(scene, outcome, timer::Timer15);
  scene.values.gReturnPuzzle = 1;
  core::setCaption(scene.text(ui::pop1), "Population:", scene.game.population);
  scene.timers.enable(timer::Timer15);
}

/// Notes the solved level in "config.dat": its first two fields stay as they are.
void noteSolved(Scene& scene, store::ProgressKeeper& keeper) {
  core::ProgramValues& values = scene.values;
  values.puzzleDone[values.gMission.whole() - core::kFirstPuzzle + 1] = 1;
  std::string notice;
  store::Progress progress = keeper.read(notice);
  progress.puzzleDone = values.puzzleDone;
  keeper.write(progress, notice);
  if (!notice.empty()) scene.desk.showBox("Error", notice);
}

/// Tents on the map, counted by picture: a residence that has grown into a house counts no more, nor
/// does one that an access view has recoloured.
double countTents(core::GameState& game) {
  game.scratchCount = 0;
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      if (game.tileImage(x, y) == core::kTentImage) game.scratchCount += 1;
    }
  }
  return game.scratchCount / 4;
}

bool residencesPlaced(Scene& scene, const Puzzle& level) {
  const double tents = countTents(scene.game);
  // While buildings wait to be lost with their road, the strip stands still and nothing is solved.
  if (scene.timers.enabled(timer::Timer8)) return false;
  platform::Text& strip = scene.text(ui::Label18);
  strip.assign(core::puzzleGoal(scene.values.gMission.whole()));
  strip.append(" (current:");
  strip.append(core::NumberText(tents));
  strip.append(")");
  return tents >= level.goal;
}

}  // namespace

const Puzzle& puzzle(int mission) {
  return kTable[static_cast<std::size_t>(mission - core::kFirstPuzzle)];
}

void writePuzzleGoal(Scene& scene) {
  scene.text(ui::Label18).assign(core::puzzleGoal(scene.values.gMission.whole()));
}

void puzzleTick(Scene& scene, store::ProgressKeeper& progress) {
  core::GameState& game = scene.game;
  if (scene.values.gMission < core::kFirstPuzzle) {
    scene.form.hide(ui::Frame21);
    scene.timers.disable(timer::Timer14);
    return;
  }
  if (game.overlayView == 0) {
    scene.form.moveTo(ui::Frame21, 100, 560);
    if (!scene.form[ui::Frame21].visible) scene.form.show(ui::Frame21);
  }
  const Puzzle& level = puzzle(scene.values.gMission.whole());
  bool solved = false;
  bool failed = false;
  switch (level.kind) {
    case Kind::people:
      solved = game.population >= level.goal;
      break;
    case Kind::residences:
      solved = residencesPlaced(scene, level);
      break;
    case Kind::gold:
      solved = scene.values.gYear == kGoldYear && game.gold >= level.goal;
      failed = scene.values.gYear == kGoldYear && !solved;
      break;
  }
  if (solved) {
    noteSolved(scene, progress);
    endLevel(scene, "MISSION COMPLETED");
  } else if (failed) {
    endLevel(scene, "MISSION FAILED");
  }
}

}  // namespace scenario
