#include "sim/flood.h"

#include <array>
#include <cstdint>

#include "core/buildings.h"

// The flood is worked out in place, cell by cell, and what a pass sets is seen by the cells scanned after
// it: within one pass a service runs any distance toward higher x and y, and a single cell toward
// lower x or y. Services do not interact, so the five flags of a cell are walked as five
// bits.
namespace sim {

namespace {

using core::CellOffset;
using core::City;
using core::kLastCell;
using core::kServices;

// A press with a long road against the scan takes several floods until the far end is served. Deliberate:
// the player sees a service creep on with each further press.
constexpr int kPasses = 12;

constexpr unsigned bitOf(int k) {
  return 1u << (k - 1);
}

// The cells -1 .. 31 both ways: the scanned cells, and those beside them that are looked at.
constexpr int kFirst = -1;
constexpr int kSide = core::kBoardSize + 2;
using Bits = std::array<std::uint8_t, kSide * kSide>;
constexpr std::size_t at(int x, int y) {
  return static_cast<std::size_t>((y - kFirst) * kSide + x - kFirst);
}

struct Spot {
  std::int8_t x;
  std::int8_t y;
  bool isRoad;  // else a residence cell
};

struct Network {
  Bits road{};      // services that the road cell carries
  Bits served{};    // services that the residence cell has
  Bits covered{};   // services whose effect area holds the cell
  Bits handedOn{};  // services that a residence cell has given to its building
  std::array<Spot, core::kBoardSize * core::kBoardSize> spots;  // roads and residences, as scanned
  int spotCount = 0;
};

// Takes one service's flags as a bit.
void gather(Bits& into, const core::CellGrid<core::Flag>& flags, unsigned bit) {
  for (int y = kFirst; y <= kLastCell + 1; ++y) {
    for (int x = kFirst; x <= kLastCell + 1; ++x) {
      into[at(x, y)] |= static_cast<std::uint8_t>(flags(x, y) == 1 ? bit : 0);
    }
  }
}

// Returns as flags the bits that were added.
void giveBack(const Bits& before, const Bits& after, core::LayerGrids<core::Flag>& layers) {
  for (int y = kFirst; y <= kLastCell + 1; ++y) {
    for (int x = kFirst; x <= kLastCell + 1; ++x) {
      const unsigned added = after[at(x, y)] & ~static_cast<unsigned>(before[at(x, y)]);
      if (added == 0) continue;
      for (int k = 1; k <= kServices; ++k) {
        if (added & bitOf(k)) layers[k](x, y) = 1;
      }
    }
  }
}

// Serves the block that a press has just placed: one covered cell is enough here, wherever the road
// touches, while the passes require the very cell beside the road. What is on the block is not
// checked: a road laid while the residence was the last tool of the palette runs this too.
void servePlacedBlock(City& city, core::Cell anchor) {
  for (int k = 1; k <= kServices; ++k) {
    bool roadCarries = false;
    for (const CellOffset ring : core::kRingOfBlock) {
      if (city.roadService[k](anchor.x + ring.x, anchor.y + ring.y) == 1) roadCarries = true;
    }
    bool covered = false;
    for (const CellOffset cell : core::kBlock) {
      if (core::coverGrid(city, k)(anchor.x + cell.x, anchor.y + cell.y) == 1) covered = true;
    }
    if (!roadCarries || !covered) continue;
    for (const CellOffset cell : core::kBlock) {
      city.cellService[k](anchor.x + cell.x, anchor.y + cell.y) = 1;
    }
  }
}

// The service of a building cell beside a road, as a bit. Only the two cells of a block that face
// the road count.
unsigned facing(int code, int oneCell, int otherCell) {
  const int k = core::serviceOfCode(code);
  if (k == 0) return 0;
  const int cell = code % 10;
  return k == core::kDoctor || cell == oneCell || cell == otherCell ? bitOf(k) : 0;
}

unsigned servicesBeside(const City& city, int x, int y) {
  return facing(city.tileCode(x - 1, y), 2, 4) | facing(city.tileCode(x, y - 1), 3, 4) |
         facing(city.tileCode(x + 1, y), 1, 3) | facing(city.tileCode(x, y + 1), 1, 2);
}

// Hands what a residence cell has to the cells around it that belong to the same building. What it
// handed on before, its neighbours still have. Says whether anything was added.
bool handOn(const City& city, Network& net, int x, int y) {
  const unsigned services = net.served[at(x, y)];
  if (services == net.handedOn[at(x, y)]) return false;
  net.handedOn[at(x, y)] = static_cast<std::uint8_t>(services);
  const double id = city.buildingId(x, y);
  bool added = false;
  for (int b = -1; b <= 1; ++b) {
    for (int a = -1; a <= 1; ++a) {
      std::uint8_t& other = net.served[at(x + a, y + b)];
      if (city.buildingId(x + a, y + b) != id || (services & ~unsigned{other}) == 0) continue;
      other |= static_cast<std::uint8_t>(services);
      added = true;
    }
  }
  return added;
}

// One scan over the map. Says whether anything was added.
bool pass(const City& city, Network& net) {
  bool added = false;
  for (int n = 0; n < net.spotCount; ++n) {
    const Spot spot = net.spots[n];
    const std::size_t here = at(spot.x, spot.y);
    const unsigned around =
        net.road[here - 1] | net.road[here + 1] | net.road[here - kSide] | net.road[here + kSide];
    std::uint8_t& bits = spot.isRoad ? net.road[here] : net.served[here];
    const unsigned reached = spot.isRoad ? around : around & net.covered[here];
    if (reached & ~unsigned{bits}) {
      bits |= static_cast<std::uint8_t>(reached);
      added = true;
    }
    if (!spot.isRoad && handOn(city, net, spot.x, spot.y)) added = true;
  }
  return added;
}

}  // namespace

void floodServices(City& city, std::optional<core::Cell> placed) {
  if (placed) servePlacedBlock(city, *placed);

  Network net;
  for (int k = 1; k <= kServices; ++k) {
    gather(net.road, city.roadService[k], bitOf(k));
    gather(net.served, city.cellService[k], bitOf(k));
    gather(net.covered, core::coverGrid(city, k), bitOf(k));
  }
  const Bits roadBefore = net.road;
  const Bits servedBefore = net.served;

  for (int y = 0; y <= kLastCell; ++y) {
    for (int x = 0; x <= kLastCell; ++x) {
      const int code = city.tileCode(x, y);
      const bool isRoad = code == core::kRoadCode;
      if (!isRoad && !core::isResidenceCode(code)) continue;
      net.spots[net.spotCount++] = {static_cast<std::int8_t>(x), static_cast<std::int8_t>(y),
                                    isRoad};
      if (isRoad) net.road[at(x, y)] |= static_cast<std::uint8_t>(servicesBeside(city, x, y));
    }
  }

  // A pass that adds nothing leaves nothing to add for those after it.
  for (int n = 0; n < kPasses && pass(city, net); ++n) {
  }

  giveBack(roadBefore, net.road, city.roadService);
  giveBack(servedBefore, net.served, city.cellService);
}

void clearLayer(City& city, int k) {
  city.roadService[k].fillSquare(0, kLastCell, 0);
  city.cellService[k].fillSquare(0, kLastCell, 0);
}

}  // namespace sim
