// The plan of a town on a square map: streets in parallel, two rows of plots between them, which plot
// is a residence and which a service, and farms on what is left.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace campaign {

struct Cell {
  int x = 0;
  int y = 0;
  friend bool operator==(const Cell&, const Cell&) = default;
  friend auto operator<=>(const Cell&, const Cell&) = default;
};

/// The eight cells that share an edge with the 2x2 block at `at`, or the four beside a single cell.
std::vector<Cell> ringOf(Cell at, int side);

/// What the search starts from. Cells are those of the map.
struct Ground {
  int first = 0;             // first cell in play, both ways
  int side = 0;              // cells in play each way
  std::vector<int> streets;  // rows y that are streets
  int from = 0;              // first and last cell x of the streets
  int to = 0;
  int crossing = 0;               // column x of the street that joins the others
  std::array<int, 6> services{};  // [k]: how many buildings of service k
  double fullyServed = 6;         // worth of a residence with all five services, beyond its people
};

struct Town {
  int first = 0;
  int last = 0;
  std::vector<Cell> streets;
  std::vector<Cell> homes;                    // nearest to the first market first
  std::vector<int> served;                    // services that reach each of the homes
  std::array<std::vector<Cell>, 6> services;  // [k]
  std::vector<Cell> farms;

  bool isStreet(Cell cell) const;
  /// Streets to be laid, in order, so that a building at `at` stands at the network. `laid` tells which
  /// streets are there; the first building starts the network.
  std::vector<Cell> wayTo(Cell at, int side, const std::vector<Cell>& laid) const;
  int homesServedBy(int atLeast) const;
  std::string picture() const;
};

/// Shares the plots out between residences and services so that the services reach as many residences
/// as possible, by annealing.
Town planTown(const Ground& ground, std::uint64_t seed, int rounds);

}  // namespace campaign
