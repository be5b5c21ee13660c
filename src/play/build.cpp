#include "play/build.h"

#include "core/vocabulary.h"
#include "map/road_shapes.h"

namespace play {

namespace {

bool isFree(const core::GameState& game, int x, int y, int side) {
  for (int dy = 0; dy < side; ++dy) {
    for (int dx = 0; dx < side; ++dx) {
      if (game.tileCode(x + dx, y + dy) != core::kEmptyCode) return false;
    }
  }
  return true;
}

bool touchesRoad(const core::GameState& game, int x, int y,
                 std::span<const core::CellOffset> ring) {
  for (const core::CellOffset& cell : ring) {
    if (game.tileCode(x + cell.x, y + cell.y) == core::kRoadCode) return true;
  }
  return false;
}

/// The checks that all buildings share, in the order in which their messages take precedence.
bool mayPlace(Scene& scene, int side, std::span<const core::CellOffset> roadRing) {
  const core::GameState& game = scene.game;
  const int x = game.cellX.whole();
  const int y = game.cellY.whole();
  if (!isFree(game, x, y, side)) {
    say(scene, "Area is not empty");
    return false;
  }
  if (!roadRing.empty() && !touchesRoad(game, x, y, roadRing)) {
    say(scene, "Must be close to a road!");
    return false;
  }
  return true;
}

void pay(core::GameState& game, int tool) {
  const int price = core::toolDesign(tool).price;
  game.gold -= price;
  game.constructionThisMonth += price;
}

/// Hands the next id to the cells of a building.
void giveId(core::GameState& game, int side) {
  const int x = game.cellX.whole();
  const int y = game.cellY.whole();
  for (int dy = 0; dy < side; ++dy) {
    for (int dx = 0; dx < side; ++dx) game.buildingId(x + dx, y + dy) = game.nextBuildingId;
  }
  game.nextBuildingId += 1;
}

void writeCell(core::GameState& game, int x, int y, int code, int image, int tall) {
  game.tileCode(x, y) = code;
  game.tileImage(x, y) = static_cast<std::int16_t>(image);
  game.cellTall(x, y) = tall;
}

}  // namespace

bool placeBlock(Scene& scene, int tool) {
  core::GameState& game = scene.game;
  if (!mayPlace(scene, 2, core::kRingOfBlock)) return false;
  scene.cue(sound::kBuild);
  const core::BlockDesign& design = core::blockOfTool(tool);
  for (std::size_t n = 0; n < core::kBlock.size(); ++n) {
    writeCell(game, game.cellX.whole() + core::kBlock[n].x, game.cellY.whole() + core::kBlock[n].y,
              design.firstCode + static_cast<int>(n), design.images[n], design.tall[n]);
  }
  giveId(game, 2);
  pay(game, tool);
  return true;
}

bool placeDoctor(Scene& scene) {
  core::GameState& game = scene.game;
  if (!mayPlace(scene, 1, core::kNeighbours)) return false;
  scene.cue(sound::kBuild);
  writeCell(game, game.cellX.whole(), game.cellY.whole(), core::kDoctorCode, core::kDoctorImage, 1);
  giveId(game, 1);
  pay(game, core::kDoctorTool);
  return true;
}

bool layRoad(Scene& scene) {
  core::GameState& game = scene.game;
  if (!mayPlace(scene, 1, {})) return false;
  scene.cue(sound::kBuild);
  const int x = game.cellX.whole();
  const int y = game.cellY.whole();
  writeCell(game, x, y, core::kRoadCode, core::kRoadAlongY, 0);
  pay(game, core::kRoadTool);
  game.cellDirty(x, y) = 1;
  giveId(game, 1);
  map::shapePlacedRoad(game, x, y);
  return true;
}

bool placeFarm(Scene& scene) {
  core::GameState& game = scene.game;
  if (!mayPlace(scene, 3, {})) return false;
  scene.cue(sound::kBuild);
  const int x = game.cellX.whole();
  const int y = game.cellY.whole();
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) {
      writeCell(game, x + i, y + j, core::kFarmCode + 3 * i + j, core::kFarmImage1, 0);
    }
  }
  giveId(game, 3);
  pay(game, core::kFarmTool);
  game.farmCount += 1;
  return true;
}

}  // namespace play
