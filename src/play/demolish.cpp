#include "play/demolish.h"

#include "core/cell.h"
#include "core/vocabulary.h"
#include "map/road_shapes.h"
#include "map/walkers.h"
#include "sim/coverage.h"
#include "sim/disasters.h"

namespace play {

namespace {

/// A service building takes its own layer with it, a road all five; other buildings carry none.
void clearLayers(core::GameState& game, int code) {
  if (code == core::kRoadCode) {
    for (int k = 1; k <= core::kServices; ++k) sim::clearLayer(game, k);
  } else if (const int k = core::serviceOfCode(code); k != 0) {
    sim::clearLayer(game, k);
  }
}

/// Clears every cell of the building. The building id stays, so the comparison holds to the end;
/// three cells each way reach all of a farm from any of its cells.
void clearBuilding(core::GameState& game, int x, int y) {
  for (int i = -3; i <= 3; ++i) {
    for (int j = -3; j <= 3; ++j) {
      if (game.buildingId(x + i, y + j) == game.buildingId(x, y))
        core::clearCell(game, x + i, y + j);
      game.cellDirty(x + i, y + j) = 1;
    }
  }
}

}  // namespace

bool demolish(Scene& scene) {
  core::GameState& game = scene.game;
  const int x = game.cellX.whole();
  const int y = game.cellY.whole();
  const int code = game.tileCode(x, y);
  if (code == core::kEmptyCode) {
    say(scene, "Area is already clear");
    return false;
  }
  if (code == core::kRoadCode) game.demolishFlag = 1;
  if (core::isFarmCode(code)) game.farmCount -= 1;
  scene.cue(sound::kDemolish);
  // Walkers are painted out before the building goes, while the pictures around them still stand.
  map::removeWalkers(scene.stage);
  clearLayers(game, code);
  clearBuilding(game, x, y);
  map::straightenRoadsAround(game, x, y);
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
