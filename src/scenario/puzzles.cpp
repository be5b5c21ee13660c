#include "scenario/puzzles.h"

#include <array>

#include "core/missions.h"
#include "core/number_text.h"
#include "core/vocabulary.h"
#include "scenario/outcome.h"

namespace scenario {

namespace {

using play::Scene;
namespace ui = play::ui;
namespace timer = play::timer;

constexpr int kGoalStrip = ui::Frame21;
constexpr int kGoalText = ui::Label18;

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
double countTents(const core::City& city, core::RecordNumbers& numbers) {
  numbers.scratchCount = 0;
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      if (city.tileImage(x, y) == core::kTentImage) numbers.scratchCount += 1;
    }
  }
  return numbers.scratchCount / 4;
}

bool residencesPlaced(Scene& scene, const core::Puzzle& level) {
  const double tents = countTents(scene.game, scene.game);
  // While cut-off buildings wait to fall, the strip does not change and no level is solved.
  if (scene.timers.enabled(timer::Timer8)) return false;
  platform::Text& strip = scene.text(kGoalText);
  strip.assign(level.goalText);
  strip.append(" (current:");
  strip.append(core::NumberText(tents));
  strip.append(")");
  return tents >= level.goal;
}

}  // namespace

void writePuzzleGoal(Scene& scene) {
  scene.text(kGoalText).assign(core::puzzle(scene.values.gMission.whole()).goalText);
}

void puzzleTick(Scene& scene, store::ProgressKeeper& progress) {
  core::GameState& game = scene.game;
  if (scene.values.gMission < core::kFirstPuzzle) {
    scene.form.hide(kGoalStrip);
    scene.timers.disable(timer::Timer14);
    return;
  }
  if (game.overlayView == 0) {
    scene.form.moveTo(kGoalStrip, 100, 560);
    if (!scene.form[kGoalStrip].visible) scene.form.show(kGoalStrip);
  }
  const core::Puzzle& level = core::puzzle(scene.values.gMission.whole());
  bool solved = false;
  bool failed = false;
  switch (level.kind) {
    case core::Puzzle::Kind::people:
      solved = game.population >= level.goal;
      break;
    case core::Puzzle::Kind::residences:
      solved = residencesPlaced(scene, level);
      break;
    case core::Puzzle::Kind::gold:
      solved = scene.values.gYear == core::kPuzzleGoldYear && game.gold >= level.goal;
      failed = scene.values.gYear == core::kPuzzleGoldYear && !solved;
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
