#include "shell/opening.h"

#include "core/buildings.h"
#include "core/missions.h"
#include "core/new_game.h"
#include "core/number_text.h"
#include "map/geometry.h"
#include "map/ground.h"
#include "play/palette.h"
#include "scenario/puzzles.h"
#include "shell/program.h"
#include "shell/saved_games.h"
#include "store/progress.h"

namespace shell {

namespace {

namespace ui = play::ui;
namespace timer = play::timer;
using play::Scene;

constexpr int kSidePanel = ui::Frame6;
constexpr int kEndOfDemonstration = ui::Frame20;

/// Money of the modes that do not use the money choice.
void setGoldOfMode(Scene& scene) {
  const core::Mission* mission = core::missionOf(scene.values.gMission);
  if (mission != nullptr && mission->gold != 0) scene.game.gold = mission->gold;
  if (scene.values.gMission == core::kDemonstration) scene.game.gold = core::kDemonstrationGold;
}

void startDemonstration(Scene& scene) {
  scene.form.hide(kSidePanel);
  scene.timers.enable(timer::Timer13);
  scene.game.demoStep = 0;
  scene.game.currentTool = core::kInfoTool;
  play::hideCursor(scene);
  scene.form.moveTo(kEndOfDemonstration, 623, 0);
}

void drawNewMap(GameScreen& screen) {
  Scene& scene = screen.scene();
  map::readmap(scene.game, scene.values, screen.random());
  map::markCells(scene.game, 0, core::kLastCell + 1);
  drawFirstCoat(screen);
  map::DrawTiles32(scene.stage);
  map::unmarkCells(scene.game, 0, core::kLastCell + 1);
}

}  // namespace

bool continueCity(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::ProgramValues& values = scene.values;
  const core::Mission* mission = core::missionOf(values.gMission);
  if (mission == nullptr || mission->founds || values.gContinueMission != 1) return true;
  play::hideCursor(scene);
  std::string error;
  const std::string path = screen.folder() + "/" + store::handOverFile(values.gMission.whole());
  const auto record = store::readGame(path, error);
  if (record == nullptr) {
    scene.desk.showBox("Error", error);
    return false;
  }
  store::applyRecord(*record, scene.game, values);
  rebuildLoadedCity(screen);
  scene.game.food -= mission->handOver.food;
  scene.game.gold -= mission->handOver.gold;
  if (mission->handOver.year != 0) values.gYear = mission->handOver.year;
  scene.game.month = 1;
  core::clearHistory(scene.game);
  values.gContinueMission = 0;
  return true;
}

void startNewGame(GameScreen& screen) {
  Scene& scene = screen.scene();
  core::ProgramValues& values = scene.values;
  const double mode = values.gMission;
  const core::Mission* mission = core::missionOf(mode);
  if (mission != nullptr && mission->founds) values.gNewMap = 1;
  if (values.gNewMap != 1) return;

  core::resetGame(scene.game, values);
  play::holdKeys(scene);
  if (core::isPuzzle(mode)) {
    scene.game.gold = core::puzzle(values.gMission.whole()).gold;
    scene.timers.enable(timer::Timer14);
    scenario::writePuzzleGoal(scene);
  }
  // The missions' own gold comes below: for a moment the caption shows that of the money choice.
  core::setCaption(scene.text(ui::para1), "Gold:", scene.game.gold);
  writeDate(scene);
  scene.form.show(ui::tileinfo);
  play::hideCursor(scene);
  for (const core::Building& building : core::kBuildings) {
    if (building.unlocking.population > 0) scene.form.hide(ui::Command1 + building.paletteKey());
  }
  drawNewMap(screen);
  values.gNewMap = 0;
  setGoldOfMode(scene);
  if (mode == core::kDemonstration) startDemonstration(scene);
}

void prepareLoadScreen(GameScreen& screen) {
  Scene& scene = screen.scene();
  if (scene.values.gLoadPending != 1) return;
  hidePanelsForLoad(scene);
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
  game.drawTileWidth = map::kCellWidth;
  game.drawTileHeight = map::kTallHeight;
  game.drawBoardSize = core::kBoardSize;
  game.drawOffsetY = map::kHalfCellHeight;
  scene.form.moveTo(ui::picScroll, map::kRestingPlace.left, map::kRestingPlace.top);
  game.scrollX = game.scrollY = 0;
  scene.timers.disable(timer::Timer14);
  scene.form.hide(ui::Frame21);
  if (scene.values.gLoadPending != 1) startAutoPlay(screen);
  if (!continueCity(screen)) return false;
  startNewGame(screen);
  prepareLoadScreen(screen);
  // The backdrop, and before it the roofs of a city that was taken over, or the walls of a castle.
  if (scene.values.gMission < core::kOpenPlay) map::DrawTiles2(scene.stage);
  return true;
}

}  // namespace shell
