#include "play/build.h"

#include "map/road_shapes.h"

namespace play {

namespace {

bool isFree(const core::City& city, core::Cell cell, int side) {
  for (int dy = 0; dy < side; ++dy) {
    for (int dx = 0; dx < side; ++dx) {
      if (city.tileCode(cell.x + dx, cell.y + dy) != core::kEmptyCode) return false;
    }
  }
  return true;
}

/// The cells of which one must be road; none for what needs no road.
std::span<const core::CellOffset> roadRing(const core::Building& building) {
  if (building.tool == core::kRoadTool || building.tool == core::kFarmTool) return {};
  if (building.side == 1) return core::kNeighbours;
  return core::kRingOfBlock;
}

/// The checks that all buildings share, in the order in which their messages take precedence.
bool mayPlace(Scene& scene, const core::Building& building, core::Cell cell) {
  if (!isFree(scene.game, cell, building.side)) {
    say(scene, "Area is not empty");
    return false;
  }
  const std::span<const core::CellOffset> ring = roadRing(building);
  if (!ring.empty() && !core::touchesRoad(scene.game, cell, ring)) {
    say(scene, "Must be close to a road!");
    return false;
  }
  return true;
}

void pay(core::City& city, const core::Building& building) {
  city.gold -= building.price;
  city.constructionThisMonth += building.price;
}

/// Hands the next id to the cells of a building.
void giveId(core::City& city, core::Cell cell, int side) {
  for (int dy = 0; dy < side; ++dy) {
    for (int dx = 0; dx < side; ++dx) {
      city.buildingId(cell.x + dx, cell.y + dy) = city.nextBuildingId;
    }
  }
  city.nextBuildingId += 1;
}

void writeCell(core::City& city, core::Cell cell, int code, int image, int tall) {
  city.tileCode(cell.x, cell.y) = code;
  city.tileImage(cell.x, cell.y) = image;
  city.cellTall(cell.x, cell.y) = tall;
}

/// Writes codes, pictures and tall flags of all cells.
void writeCells(core::City& city, const core::Building& building, core::Cell cell) {
  const int side = building.side;
  for (int piece = 0; piece < side * side; ++piece) {
    // Deliberate: the codes of a block count row by row, those of a farm column by column.
    const bool farm = building.tool == core::kFarmTool;
    const int dx = farm ? piece / side : piece % side;
    const int dy = farm ? piece % side : piece / side;
    const int look = side == 2 ? piece : 0;
    writeCell(city, {cell.x + dx, cell.y + dy}, building.code + piece, building.look.images[look],
              building.look.tall[look]);
  }
}

}  // namespace

bool place(Scene& scene, const core::Building& building, core::Cell cell) {
  core::GameState& game = scene.game;
  if (!mayPlace(scene, building, cell)) return false;
  scene.cue(sound::kBuild);
  writeCells(game, building, cell);
  giveId(game, cell, building.side);
  pay(game, building);
  if (building.tool == core::kFarmTool) game.farmCount += 1;
  if (building.tool == core::kRoadTool) {
    game.cellDirty(cell.x, cell.y) = 1;
    game.roadNeighbourCount = map::shapePlacedRoad(game, cell.x, cell.y);
  }
  return true;
}

}  // namespace play
