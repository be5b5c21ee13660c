// Layouts of two-by-two blocks on a small square: how many there is room for, and where to put them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace planner {

struct Cell {
  int x = 0;
  int y = 0;
  friend bool operator==(const Cell&, const Cell&) = default;
};

/// Blocks by their anchors, and the streets that serve them. Cells count from 0.
struct Layout {
  int side = 0;
  std::vector<Cell> blocks;
  std::vector<Cell> streets;
};

/// The most blocks that a square of `side` cells holds while each of them has a free cell beside it.
/// Exact: a scan row by row over all ways to fill a row. Every free cell is a street, joined or not.
Layout mostBlocks(int side);

/// A layout of at least `wanted` blocks that all stand at one network of streets, found by annealing;
/// streets that nothing needs are left out. Without blocks when none was found.
Layout joinedBlocks(int side, int wanted, std::uint64_t seed, int rounds);

/// The layout as text: a letter a block, # for streets, a dot for free cells.
std::string picture(const Layout& layout);

}  // namespace planner
