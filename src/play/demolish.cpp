#include "play/demolish.h"

#include "map/road_shapes.h"
#include "map/walkers.h"
#include "sim/disasters.h"
#include "sim/flood.h"

namespace play {

namespace {

/// A service building takes its own layer with it, a road all five; other buildings carry none.
void clearLayers(core::City& city, int code) {
  if (code == core::kRoadCode) {
    for (int k = 1; k <= core::kServices; ++k) sim::clearLayer(city, k);
  } else if (const int k = core::serviceOfCode(code); k != 0) {
    sim::clearLayer(city, k);
  }
}

}  // namespace

bool demolish(Scene& scene, core::Cell cell) {
  core::GameState& game = scene.game;
  const int code = game.tileCode(cell.x, cell.y);
  if (code == core::kEmptyCode) {
    say(scene, "Area is already clear");
    return false;
  }
  if (code == core::kRoadCode) game.demolishFlag = 1;
  if (core::isFarmCode(code)) game.farmCount -= 1;
  scene.cue(sound::kDemolish);
  // Walkers are painted out before the building goes, while the pictures around them are still there.
  map::removeWalkers(scene.stage);
  clearLayers(game, code);
  // Three cells each way are all of a farm from any of its cells.
  core::clearBuilding(game, cell, 3);
  core::markAround(game, cell, 3);
  map::straightenRoadsAround(game, cell.x, cell.y);
  if (game.demolishFlag == 1) {
    if (sim::anyBuildingWithoutRoad(game)) {
      say(scene, "Some buildings lost their road access");
      scene.timers.enable(timer::Timer8);
    }
    game.demolishFlag = 0;
  }
  return true;
}

}  // namespace play
