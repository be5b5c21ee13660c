#include "map/road_shapes.h"

#include <array>

#include "core/vocabulary.h"

namespace map {

namespace {

using core::City;
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

bool isRoad(const City& city, int x, int y) {
  return city.tileCode(x, y) == core::kRoadCode;
}

void setImage(City& city, int x, int y, int image) {
  city.tileImage(x, y) = image;
}

}  // namespace

int roadImage(const City& city, int x, int y) {
  int arms = 0;
  if (isRoad(city, x, y - 1)) arms += kUp;
  if (isRoad(city, x - 1, y)) arms += kLeft;
  if (isRoad(city, x + 1, y)) arms += kRight;
  if (isRoad(city, x, y + 1)) arms += kDown;
  return kShapes[arms];
}

int shapePlacedRoad(City& city, int x, int y) {
  setImage(city, x, y, roadImage(city, x, y));
  int neighbours = 0;
  for (const core::CellOffset& d : core::kNeighbours) {
    const int nx = x + d.x;
    const int ny = y + d.y;
    if (!isRoad(city, nx, ny)) continue;
    ++neighbours;
    const int image = roadImage(city, nx, ny);
    if (image == city.tileImage(nx, ny)) continue;
    setImage(city, nx, ny, image);
    city.cellDirty(nx, ny) = 1;
  }
  return neighbours;
}

// Deliberate: these four rules and no others. after a demolition a player sees corners and right-angled
// junctions that lead nowhere, until the next load sets them right.
void straightenRoadsAround(City& city, int x, int y) {
  if (isRoad(city, x - 1, y) && isRoad(city, x - 1, y + 1) && isRoad(city, x - 1, y - 1) &&
      !isRoad(city, x - 2, y)) {
    setImage(city, x - 1, y, kRoadAlongY);
  }
  if (isRoad(city, x, y - 1) && isRoad(city, x - 1, y - 1) && isRoad(city, x + 1, y - 1) &&
      !isRoad(city, x, y - 2)) {
    setImage(city, x, y - 1, kRoadAlongX);
  }
  if (isRoad(city, x + 1, y) && isRoad(city, x + 1, y - 1) && isRoad(city, x + 1, y + 1) &&
      !isRoad(city, x + 2, y)) {
    setImage(city, x + 1, y, kRoadAlongY);
  }
  if (isRoad(city, x, y + 1) && isRoad(city, x + 1, y + 1) && isRoad(city, x - 1, y + 1) &&
      !isRoad(city, x, y + 2)) {
    setImage(city, x, y + 1, kRoadAlongX);
  }
}

void shapeAllRoads(City& city) {
  for (int y = 0; y <= core::kLastCell; ++y) {
    for (int x = 0; x <= core::kLastCell; ++x) {
      if (isRoad(city, x, y)) setImage(city, x, y, roadImage(city, x, y));
      city.cellDirty(x, y) = 1;
    }
  }
}

}  // namespace map
