#include "play/press.h"

#include "core/vocabulary.h"
#include "play/build.h"
#include "play/demolish.h"
#include "play/info.h"
#include "play/picking.h"
#include "sim/coverage.h"
#include "sim/residences.h"

namespace play {

namespace {

void closePress(Scene& scene, int tool, Hand hand) {
  core::GameState& game = scene.game;
  const int x = game.cellX.whole();
  const int y = game.cellY.whole();
  sim::rebuildCoverage(game);
  sim::floodServices(game, hand == Hand::player ? sim::FloodCause::press : sim::FloodCause::other);
  sim::rebuildCapacity(game);
  sim::evolveResidences(game);
  if (tool != core::kRoadTool) {
    for (const core::CellOffset& cell : core::kBlock) game.cellDirty(x + cell.x, y + cell.y) = 1;
  }
  if (tool == core::kFarmTool) {
    for (int dy = 0; dy < 3; ++dy) {
      for (int dx = 0; dx < 3; ++dx) game.cellDirty(x + dx, y + dy) = 1;
    }
  }
  redrawAfterBuild(scene);
  map::unmarkCells(game, 0, core::kLastCell);
}

}  // namespace

void redrawAfterBuild(Scene& scene) {
  map::DrawTiles32(scene.stage, map::kFlatCells);
  map::DrawTiles3(scene.stage, map::kTallCells);
}

void redraw(Scene& scene) {
  map::DrawTiles32(scene.stage, map::kFlatCells);
  map::DrawTiles2(scene.stage, map::kTallCells);
}

void useTool(Scene& scene, int tool, Hand hand) {
  bool done = false;
  if (tool >= 1 && tool <= 5) {
    done = placeBlock(scene, tool);
  } else if (tool == core::kDoctorTool) {
    done = placeDoctor(scene);
  } else if (tool == core::kDemolishTool) {
    done = demolish(scene);
  } else if (tool == core::kRoadTool) {
    done = layRoad(scene);
  } else if (tool == core::kFarmTool) {
    done = placeFarm(scene);
  }
  if (done) closePress(scene, tool, hand);
}

void pressMap(Scene& scene, double x, double y) {
  core::GameState& game = scene.game;
  pickCell(game, x, y);
  clampCell(game, scene.values);
  if (game.currentTool == core::kInfoTool) {
    inspectCell(scene);
    return;
  }
  if (game.overlayView != 0) {
    say(scene, "Switch to normal view first");
    return;
  }
  // Asked for is one piece of gold, not the price: with 1 or more anything may be built, and the
  // treasury can go below zero by it.
  if (game.gold < 1 && game.currentTool != core::kDemolishTool) {
    say(scene, "You don't have enough money");
    return;
  }
  useTool(scene, game.currentTool.whole(), Hand::player);
}

}  // namespace play
