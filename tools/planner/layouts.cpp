#include "planner/layouts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <unordered_map>

namespace planner {

namespace {

constexpr int kMostSide = 11;

// What a row leaves open for the row below, a value a column.
enum Open : int {
  kFree = 0,         // no block here
  kTopServed = 1,    // upper half of a block that has a free cell beside it
  kTopUnserved = 2,  // upper half of a block that still lacks one
  kDone = 3,         // lower half, served
  kWaiting = 4,      // lower half that only a free cell below can serve
};
using Row = std::array<std::int8_t, kMostSide>;

std::uint64_t keyOf(const Row& row, int side) {
  std::uint64_t key = 0;
  for (int x = 0; x < side; ++x) key = key * 5 + static_cast<std::uint64_t>(row[x]);
  return key;
}

struct Best {
  Row row{};
  int blocks = 0;
  std::uint64_t before = 0;
};
using Level = std::unordered_map<std::uint64_t, Best>;

/// Tries every row that fits below another and keeps the best way to each.
class RowFiller {
 public:
  RowFiller(int side, bool last) : side_(side), last_(last) {}

  void fill(const Best& above, std::uint64_t key, Level& next) {
    above_ = &above;
    key_ = key;
    next_ = &next;
    place(0, 0);
  }

 private:
  void place(int x, int newBlocks) {
    if (x == side_) {
      finish(newBlocks);
      return;
    }
    const int over = above_->row[x];
    if (over == kTopServed || over == kTopUnserved) {
      kind_[x] = kind_[x + 1] = 'b';
      place(x + 2, newBlocks);
      return;
    }
    kind_[x] = '.';
    place(x + 1, newBlocks);
    if (last_ || x + 1 >= side_) return;
    const int beside = above_->row[x + 1];
    if (beside == kTopServed || beside == kTopUnserved) return;
    kind_[x] = kind_[x + 1] = 't';
    place(x + 2, newBlocks + 1);
  }

  void finish(int newBlocks) {
    const Row& over = above_->row;
    Row row{};
    for (int x = 0; x < side_;) {
      // A waiting block above takes two columns; one of the cells below it must be free.
      if (kind_[x] == '.') {
        row[x++] = kFree;
        continue;
      }
      const bool sideFree =
          (x > 0 && kind_[x - 1] == '.') || (x + 2 < side_ && kind_[x + 2] == '.');
      if (kind_[x] == 't') {
        const bool served = sideFree || over[x] == kFree || over[x + 1] == kFree;
        row[x] = row[x + 1] = served ? kTopServed : kTopUnserved;
      } else {
        const bool served = sideFree || over[x] == kTopServed;
        row[x] = row[x + 1] = served ? kDone : kWaiting;
        if (last_ && !served) return;
      }
      x += 2;
    }
    for (int x = 0; x < side_;) {
      if (over[x] == kFree) {
        ++x;
        continue;
      }
      if (over[x] == kWaiting && kind_[x] != '.' && kind_[x + 1] != '.') return;
      x += 2;
    }
    const int blocks = above_->blocks + newBlocks;
    Best& best = (*next_)[keyOf(row, side_)];
    if (best.blocks <= blocks) best = {row, blocks, key_};
  }

  int side_;
  bool last_;
  const Best* above_ = nullptr;
  std::uint64_t key_ = 0;
  Level* next_ = nullptr;
  std::array<char, kMostSide + 1> kind_{};
};

/// Annealing over placements of blocks; every cell without a block is a street.
class Annealer {
 public:
  Annealer(int side, std::uint64_t seed) : side_(side), random_(seed) { cells_.fill(-1); }

  bool run(int wanted, int rounds) {
    int worth = joined();
    for (int n = 0; n < rounds; ++n) {
      const double heat = 0.9 * (1 - static_cast<double>(n) / rounds) + 0.12;
      const std::vector<Cell> before = blocks_;
      const auto cellsBefore = cells_;
      change();
      const int now = joined();
      if (now >= worth || std::exp((now - worth) / heat) > share_(random_)) {
        worth = now;
        if (worth >= wanted) return true;
      } else {
        blocks_ = before;
        cells_ = cellsBefore;
      }
    }
    return false;
  }

  /// The joined blocks and the streets they need.
  Layout result() {
    joined();
    Layout layout;
    layout.side = side_;
    std::vector<Cell> kept;
    for (const Cell& block : blocks_) {
      if (touches(block, main_)) kept.push_back(block);
    }
    layout.blocks = kept;
    std::vector<Cell> streets;
    for (int y = 0; y < side_; ++y) {
      for (int x = 0; x < side_; ++x) {
        if (group_[at(x, y)] == main_) streets.push_back({x, y});
      }
    }
    // Leave out, one after another, every street that neither joins nor serves.
    bool shrunk = true;
    while (shrunk) {
      shrunk = false;
      for (std::size_t n = 0; n < streets.size(); ++n) {
        std::vector<Cell> fewer = streets;
        fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(n));
        if (!serves(fewer, kept)) continue;
        streets = fewer;
        shrunk = true;
        break;
      }
    }
    layout.streets = streets;
    return layout;
  }

 private:
  int at(int x, int y) const { return y * kMostSide + x; }
  bool inside(int x, int y) const { return x >= 0 && y >= 0 && x < side_ && y < side_; }

  bool roomFor(Cell block) const {
    if (!inside(block.x, block.y) || !inside(block.x + 1, block.y + 1)) return false;
    for (int n = 0; n < 4; ++n) {
      if (cells_[at(block.x + n % 2, block.y + n / 2)] != -1) return false;
    }
    return true;
  }
  void put(Cell block, int value) {
    for (int n = 0; n < 4; ++n) cells_[at(block.x + n % 2, block.y + n / 2)] = value;
  }
  int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  void change() {
    const int what = pick(4);
    if (!blocks_.empty() && what != 0) {
      const std::size_t n = static_cast<std::size_t>(pick(static_cast<int>(blocks_.size())));
      const Cell old = blocks_[n];
      put(old, -1);
      if (what == 1) {
        blocks_[n] = blocks_.back();
        blocks_.pop_back();
      } else {
        static constexpr int kStep[4][2] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}};
        const int d = pick(4);
        const Cell moved{old.x + kStep[d][0], old.y + kStep[d][1]};
        blocks_[n] = roomFor(moved) ? moved : old;
        put(blocks_[n], 1);
      }
    }
    for (int tries = 0; tries < 3; ++tries) {
      const Cell block{pick(side_ - 1), pick(side_ - 1)};
      if (!roomFor(block)) continue;
      put(block, 1);
      blocks_.push_back(block);
    }
  }

  bool touches(const Cell& block, int group) const {
    static constexpr int kRing[8][2] = {{-1, 0}, {-1, 1}, {0, -1}, {1, -1},
                                        {0, 2},  {1, 2},  {2, 1},  {2, 0}};
    for (const auto& ring : kRing) {
      const int x = block.x + ring[0];
      const int y = block.y + ring[1];
      if (inside(x, y) && group_[at(x, y)] == group) return true;
    }
    return false;
  }

  /// Blocks beside the network that serves most of them; fills group_ and main_.
  int joined() {
    group_.fill(-1);
    int groups = 0;
    for (int y = 0; y < side_; ++y) {
      for (int x = 0; x < side_; ++x) {
        if (cells_[at(x, y)] == -1 && group_[at(x, y)] == -1) spread(x, y, groups++);
      }
    }
    int best = 0;
    main_ = 0;
    for (int group = 0; group < groups; ++group) {
      int count = 0;
      for (const Cell& block : blocks_) count += touches(block, group) ? 1 : 0;
      if (count > best) {
        best = count;
        main_ = group;
      }
    }
    return best;
  }
  void spread(int x, int y, int group) {
    if (!inside(x, y) || cells_[at(x, y)] != -1 || group_[at(x, y)] != -1) return;
    group_[at(x, y)] = group;
    spread(x + 1, y, group);
    spread(x - 1, y, group);
    spread(x, y + 1, group);
    spread(x, y - 1, group);
  }

  bool serves(const std::vector<Cell>& streets, const std::vector<Cell>& blocks) {
    if (streets.empty()) return false;
    const auto groupBefore = group_;
    const auto cellsBefore = cells_;
    cells_.fill(1);
    for (const Cell& street : streets) cells_[at(street.x, street.y)] = -1;
    group_.fill(-1);
    spread(streets[0].x, streets[0].y, 0);
    bool good = true;
    for (const Cell& street : streets) good = good && group_[at(street.x, street.y)] == 0;
    for (const Cell& block : blocks) good = good && touches(block, 0);
    group_ = groupBefore;
    cells_ = cellsBefore;
    return good;
  }

  int side_;
  std::mt19937_64 random_;
  std::uniform_real_distribution<double> share_{0, 1};
  std::vector<Cell> blocks_;
  std::array<int, kMostSide * kMostSide> cells_{};
  std::array<int, kMostSide * kMostSide> group_{};
  int main_ = 0;
};

}  // namespace

Layout mostBlocks(int side) {
  std::vector<Level> levels(static_cast<std::size_t>(side) + 1);
  Best start;
  start.row.fill(kDone);  // above the first row there is nothing, and nothing that serves
  // The first row is free of halves: mark pairs as done so that no block counts the edge as a street.
  levels[0][keyOf(start.row, side)] = start;
  for (int y = 0; y < side; ++y) {
    RowFiller filler(side, y == side - 1);
    for (const auto& [key, best] : levels[static_cast<std::size_t>(y)]) {
      filler.fill(best, key, levels[static_cast<std::size_t>(y) + 1]);
    }
  }
  Layout layout;
  layout.side = side;
  const Best* best = nullptr;
  for (const auto& [key, found] : levels.back()) {
    if (best == nullptr || found.blocks > best->blocks) best = &found;
  }
  for (int y = side - 1; y >= 0; --y) {
    for (int x = 0; x < side;) {
      const int value = best->row[x];
      if (value == kFree) {
        layout.streets.push_back({x, y});
        ++x;
        continue;
      }
      if (value == kTopServed || value == kTopUnserved) layout.blocks.push_back({x, y});
      x += 2;
    }
    best = &levels[static_cast<std::size_t>(y)].at(best->before);
  }
  return layout;
}

Layout joinedBlocks(int side, int wanted, std::uint64_t seed, int rounds) {
  Annealer annealer(side, seed);
  if (!annealer.run(wanted, rounds)) return {side, {}, {}};
  return annealer.result();
}

std::string picture(const Layout& layout) {
  std::string text;
  std::vector<std::string> lines(static_cast<std::size_t>(layout.side),
                                 std::string(static_cast<std::size_t>(layout.side), '.'));
  const auto cell = [&](int x, int y) -> char& {
    return lines[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
  };
  for (std::size_t n = 0; n < layout.blocks.size(); ++n) {
    const Cell& block = layout.blocks[n];
    for (int c = 0; c < 4; ++c) cell(block.x + c % 2, block.y + c / 2) = static_cast<char>('A' + n);
  }
  for (const Cell& street : layout.streets) cell(street.x, street.y) = '#';
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

}  // namespace planner
