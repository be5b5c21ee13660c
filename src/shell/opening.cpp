#include "shell/opening.h"

#include "core/goals.h"
#include "core/new_game.h"
#include "core/number_text.h"
#include "map/ground.h"
#include "play/palette.h"
#include "scenario/missions.h"
#include "scenario/puzzles.h"
#include "shell/program.h"
#include "shell/saved_games.h"
#include "store/progress.h"

namespace shell {

namespace {

namespace ui = play::ui;
namespace timer = play::timer;
using play::Scene;

/// Money of the modes that do not ask the money choice.
void setGoldOfMode(Scene& scene) {
  if (scene.values.gMission == 1) scene.game.gold = 400;
  if (scene.values.gMission == 4) scene.game.gold = 800;
  if (scene.values.gMission == 7) scene.game.gold = 600;
  if (scene.values.gMission == core::kDemonstration) scene.game.gold = 1000;
}

void startDemonstration(Scene& scene) {
  scene.form.hide(ui::Frame6);
  scene.timers.enable(timer::Timer13);
  scene.game.demoStep = 0;
  scene.game.currentTool = 10;
  play::hideCursor(scene);
  scene.form.moveTo(ui::Frame20, 623, 0);
}

void drawNewMap(GameScreen& screen) {
  Scene& scene = screen.scene();
  map::readmap(scene.game, scene.values, screen.random());
  map::markCells(scene.game, 0, core::kLastCell + 1);
  drawFirstCoat(screen);
  map::DrawTiles32(scene.stage, map::kFlatCells);
  map::unmarkCells(scene.game, 0, core::kLastCell + 1);
}

}  // namespace

bool continueCity(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::ProgramValues& values = scene.values;
  if (!(values.gMission < core::kOpenPlay) || values.gContinueMission != 1 ||
      !scenario::goesOn(values.gMission)) {
    return true;
  }
  play::hideCursor(scene);
  const int mission = values.gMission.whole();
  std::string error;
  const auto record = store::readGame(screen.folder() + "/" + store::handOverFile(mission), error);
  if (record == nullptr) {
    scene.desk.showBox("Error", error);
    return false;
  }
  store::applyRecord(*record, scene.game, values);
  rebuildLoadedCity(screen);
  const scenario::HandOver payment = scenario::handOver(mission);
  scene.game.food -= payment.food;
  scene.game.gold -= payment.gold;
  if (payment.year != 0) values.gYear = payment.year;
  scene.game.month = 1;
  core::clearHistory(scene.game);
  values.gContinueMission = 0;
  return true;
}

void startNewGame(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::ProgramValues& values = scene.values;
  const double mission = values.gMission;
  if (mission == 1 || mission == 4 || mission == 7 || mission == 9) values.gNewMap = 1;
  if (values.gNewMap != 1) return;

  core::resetGame(scene.game, values);
  play::markToolInHand(scene);
  if (core::isPuzzle(mission)) {
    scene.game.gold = scenario::puzzle(values.gMission.whole()).gold;
    scene.timers.enable(timer::Timer14);
    scenario::writePuzzleGoal(scene);
  }
  // The missions' own gold comes below: for a moment the caption shows that of the money choice.
  core::setCaption(scene.text(ui::para1), "Gold:", scene.game.gold);
  writeDate(scene);
  scene.form.show(ui::tileinfo);
  play::hideCursor(scene);
  for (int n = 2; n <= 5; ++n) scene.form.hide(ui::Command1 + n);
  drawNewMap(screen);
  values.gNewMap = 0;
  setGoldOfMode(scene);
  if (mission == core::kDemonstration) startDemonstration(scene);
}

void prepareLoadScreen(GameScreen& screen) {
  Scene& scene = screen.scene();
  if (scene.values.gLoadPending != 1) return;
  for (const int panel : {ui::Frame14, ui::frameload, ui::Frame6, ui::tileinfo, ui::Frame2}) {
    scene.form.hide(panel);
  }
  play::hideCursor(scene);
  scene.timers.disable(timer::Timer5);
  scene.timers.disable(timer::Timer6);
  drawFirstCoat(screen);
  scene.stage.canvas.blank();
  refreshFileList(screen, ui::File1);
  scene.form.centre(ui::frameload);
  scene.form.show(ui::frameload);
  scene.timers.disable(timer::Timer2);
  scene.timers.disable(timer::Timer6);
  scene.timers.disable(timer::Timer7);
}

bool openGameScreen(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::GameState& game = scene.game;
  game.drawTileWidth = 64;
  game.drawTileHeight = 64;
  game.drawBoardSize = 31;
  game.drawOffsetY = 16;
  scene.form.moveTo(ui::picScroll, -592, -228);
  game.scrollX = game.scrollY = 0;
  scene.timers.disable(timer::Timer14);
  scene.form.hide(ui::Frame21);
  if (scene.values.gLoadPending != 1) startAutoPlay(screen);
  if (!continueCity(screen)) return false;
  startNewGame(screen);
  prepareLoadScreen(screen);
  // The backdrop, and before it the roofs of a city that was taken over, or the walls of a castle.
  if (scene.values.gMission < core::kOpenPlay) map::DrawTiles2(scene.stage, map::kTallCells);
  return true;
}

}  // namespace shell
