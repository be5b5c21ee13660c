#include "map/ground.h"

#include <array>
#include <cmath>

#include "core/missions.h"
#include "core/vocabulary.h"

namespace map {

namespace {

using core::City;
using core::kGroundImage;
using core::kGroundImage2;
using core::kGroundImage3;
using core::kLastCell;
using core::kVoidImage;

constexpr int kWallAlongX = 59;
constexpr int kWallAlongY = 60;
constexpr int kTower = 61;
constexpr int kFirstWallCell = 9;
constexpr int kLastWallCell = 21;
constexpr int kWallLine = 22;

constexpr std::array<core::CellOffset, 8> kAround{
    {{-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {0, 1}, {1, 1}}};

void scatter(City& city, platform::Random& random) {
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      const double r = std::floor(2 * random.uniform() + 1);
      city.tileImage(x, y) = r == 1 ? kGroundImage : kGroundImage2;
    }
  }
}

// Works in place: a neighbour that this scan has turned already is no longer counted, so a large
// patch of the second variant is dotted with the third, not filled with it.
void clump(City& city) {
  for (int y = 1; y < kLastCell; ++y) {
    for (int x = 1; x < kLastCell; ++x) {
      if (city.tileImage(x, y) != kGroundImage2) continue;
      int count = 0;
      for (const auto& d : kAround) count += city.tileImage(x + d.x, y + d.y) == kGroundImage2;
      if (count > 5) city.tileImage(x, y) = kGroundImage3;
    }
  }
}

// In place as well: of two neighbouring dots the first in the scan wipes out the other.
void clearAroundClumps(City& city) {
  for (int y = 1; y < kLastCell; ++y) {
    for (int x = 1; x < kLastCell; ++x) {
      if (city.tileImage(x, y) != kGroundImage3) continue;
      for (const auto& d : kAround) city.tileImage(x + d.x, y + d.y) = kGroundImage2;
    }
  }
}

// The later test wins: the ring over the lines beside it, the void over both.
void drawBorders(City& city, const core::ProgramValues& values) {
  const double s = values.gMapSize;
  const double m = core::mapMargin(values);
  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      auto& image = city.tileImage(x, y);
      if (x == s + m - 1) image = kGroundImage2;
      if (y == s + m - 1) image = kGroundImage2;
      if (x == m + 1) image = kGroundImage2;
      if (y == m + 1) image = kGroundImage2;
      if (x == s + m) image = kGroundImage3;
      if (y == s + m) image = kGroundImage3;
      if (x == m) image = kGroundImage3;
      if (y == m) image = kGroundImage3;
      if (x > s + m) image = kVoidImage;
      if (y > s + m) image = kVoidImage;
      if (x < m) image = kVoidImage;
      if (y < m) image = kVoidImage;
    }
  }
}

void putWall(City& city, int x, int y, int image) {
  city.tileImage(x, y) = image;
  city.cellTall(x, y) = 1;
}

// The two walls nearest the viewer, one line outside the ring of a square of 12. Their codes stay
// 0: the cursor never gets there.
void buildWalls(City& city) {
  for (int n = kFirstWallCell; n <= kLastWallCell; ++n) {
    putWall(city, n, kWallLine, kWallAlongX);
    putWall(city, kWallLine, n, kWallAlongY);
  }
  putWall(city, 15, kWallLine, kTower);
  putWall(city, kWallLine, kWallLine, kTower);
  putWall(city, kWallLine, 15, kTower);
}

}  // namespace

void readmap(City& city, const core::ProgramValues& values, platform::Random& random) {
  scatter(city, random);
  clump(city);
  clearAroundClumps(city);
  drawBorders(city, values);
  const core::Mission* mission = core::missionOf(values.gMission);
  if (mission != nullptr && mission->walls) buildWalls(city);
}

}  // namespace map
