#include "play/press.h"

#include "play/build.h"
#include "play/demolish.h"
#include "play/info.h"
#include "play/picking.h"
#include "sim/rebuild.h"

namespace play {

namespace {

void closePress(Scene& scene, int tool, core::Cell cell, User user) {
  core::GameState& game = scene.game;
  sim::Rebuild steps{.flood = true};
  // Deliberate: what was built is not checked. A road laid while the residence was the last tool of the
  // palette is served like one.
  if (user == User::player && game.lastPaletteTool == core::kResidenceTool) steps.placed = cell;
  sim::rebuildCity(game, steps);
  if (tool != core::kRoadTool) {
    for (const core::CellOffset& d : core::kBlock) game.cellDirty(cell.x + d.x, cell.y + d.y) = 1;
  }
  if (tool == core::kFarmTool) {
    for (int dy = 0; dy < 3; ++dy) {
      for (int dx = 0; dx < 3; ++dx) game.cellDirty(cell.x + dx, cell.y + dy) = 1;
    }
  }
  redraw(scene, map::DrawTiles3);
  map::unmarkCells(game, 0, core::kLastCell);
}

}  // namespace

void redraw(Scene& scene, DrawTall drawTall) {
  map::DrawTiles32(scene.stage);
  drawTall(scene.stage);
}

void useTool(Scene& scene, int tool, core::Cell cell, User user) {
  const core::Building* building = core::buildingOfTool(tool);
  bool done = false;
  if (building != nullptr) {
    done = place(scene, *building, cell);
  } else if (tool == core::kDemolishTool) {
    done = demolish(scene, cell);
  }
  if (done) closePress(scene, tool, cell, user);
}

void pressMap(Scene& scene, double x, double y) {
  core::GameState& game = scene.game;
  pickCell(game, x, y);
  clampCell(game, scene.values);
  const core::Cell cell{game.cellX.whole(), game.cellY.whole()};
  if (game.currentTool == core::kInfoTool) {
    inspectCell(scene, cell);
    return;
  }
  if (game.overlayView != 0) {
    say(scene, "Switch to normal view first");
    return;
  }
  // Deliberate: one piece of gold is required, not the price. With 1 or more anything may be built, and
  // the treasury can go below zero.
  if (game.gold < 1 && game.currentTool != core::kDemolishTool) {
    say(scene, "You don't have enough money");
    return;
  }
  useTool(scene, game.currentTool.whole(), cell, User::player);
}

}  // namespace play
