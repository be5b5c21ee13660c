#include "map/road_shapes.h"

#include <array>

#include "core/vocabulary.h"

namespace map {

namespace {

using core::GameState;
using core::kRoadAlongX;
using core::kRoadAlongY;
using core::kRoadJunction;

// Arms of a road; the sum of those that are there is the index into the table.
constexpr int kUp = 1;     // y - 1
constexpr int kLeft = 2;   // x - 1
constexpr int kRight = 4;  // x + 1
constexpr int kDown = 8;   // y + 1

constexpr int kCornerUpLeft = 49;
constexpr int kCornerUpRight = 50;
constexpr int kCornerLeftDown = 51;
constexpr int kCornerRightDown = 52;

constexpr std::array<int, 16> kShapes{
    kRoadAlongY,       // alone
    kRoadAlongY,       // up
    kRoadAlongX,       //    left
    kCornerUpLeft,     // up left
    kRoadAlongX,       //         right
    kCornerUpRight,    // up      right
    kRoadAlongX,       //    left right
    kRoadJunction,     // up left right
    kRoadAlongY,       //               down
    kRoadAlongY,       // up            down
    kCornerLeftDown,   //    left       down
    kRoadJunction,     // up left       down
    kCornerRightDown,  //         right down
    kRoadJunction,     // up      right down
    kRoadJunction,     //    left right down
    kRoadJunction,     // up left right down
};

bool isRoad(const GameState& game, int x, int y) {
  return game.tileCode(x, y) == core::kRoadCode;
}

void setImage(GameState& game, int x, int y, int image) {
  game.tileImage(x, y) = static_cast<std::int16_t>(image);
}

}  // namespace

int roadImage(const GameState& game, int x, int y) {
  int arms = 0;
  if (isRoad(game, x, y - 1)) arms += kUp;
  if (isRoad(game, x - 1, y)) arms += kLeft;
  if (isRoad(game, x + 1, y)) arms += kRight;
  if (isRoad(game, x, y + 1)) arms += kDown;
  return kShapes[static_cast<std::size_t>(arms)];
}

void shapePlacedRoad(GameState& game, int x, int y) {
  setImage(game, x, y, roadImage(game, x, y));
  game.roadNeighbourCount = 0;
  for (const core::CellOffset& d : core::kNeighbours) {
    const int nx = x + d.x;
    const int ny = y + d.y;
    if (!isRoad(game, nx, ny)) continue;
    game.roadNeighbourCount += 1;
    const int image = roadImage(game, nx, ny);
    if (image == game.tileImage(nx, ny)) continue;
    setImage(game, nx, ny, image);
    game.cellDirty(nx, ny) = 1;
  }
}

// These four rules and no others: after a demolition a player sees corners and right-angled
// junctions that lead nowhere, until the next load sets them right.
void straightenRoadsAround(GameState& game, int x, int y) {
  if (isRoad(game, x - 1, y) && isRoad(game, x - 1, y + 1) && isRoad(game, x - 1, y - 1) &&
      !isRoad(game, x - 2, y)) {
    setImage(game, x - 1, y, kRoadAlongY);
  }
  if (isRoad(game, x, y - 1) && isRoad(game, x - 1, y - 1) && isRoad(game, x + 1, y - 1) &&
      !isRoad(game, x, y - 2)) {
    setImage(game, x, y - 1, kRoadAlongX);
  }
  if (isRoad(game, x + 1, y) && isRoad(game, x + 1, y - 1) && isRoad(game, x + 1, y + 1) &&
      !isRoad(game, x + 2, y)) {
    setImage(game, x + 1, y, kRoadAlongY);
  }
  if (isRoad(game, x, y + 1) && isRoad(game, x + 1, y + 1) && isRoad(game, x - 1, y + 1) &&
      !isRoad(game, x, y + 2)) {
    setImage(game, x, y + 1, kRoadAlongX);
  }
}

void shapeAllRoads(GameState& game) {
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      if (isRoad(game, x, y)) setImage(game, x, y, roadImage(game, x, y));
      game.cellDirty(x, y) = 1;
    }
  }
}

}  // namespace map
