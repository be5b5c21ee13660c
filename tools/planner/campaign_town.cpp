#include "planner/campaign_town.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <queue>
#include <random>
#include <set>

namespace campaign {

namespace {

constexpr int kHome = 0;
constexpr int kDoctor = 5;
constexpr std::array<int, 6> kReach = {0, 5, 6, 4, 5, 4};

int sideOfService(int service) {
  return service == kDoctor ? 1 : 2;
}

/// Plots and what stands on them, during the search.
class Plots {
 public:
  explicit Plots(const Ground& ground) : ground_(ground) {
    const int end = ground.first + ground.side;
    for (const int y : ground.streets) {
      for (int x = ground.from; x <= ground.to; ++x) streets_.insert({x, y});
    }
    const auto [low, high] = std::minmax_element(ground.streets.begin(), ground.streets.end());
    for (int y = *low; y <= *high; ++y) streets_.insert({ground.crossing, y});
    taken_ = streets_;
    for (const int street : ground.streets) {
      for (const int y : {street - 2, street + 1}) {
        if (y < ground.first || y + 1 >= end) continue;
        for (int x = ground.crossing - 2; x >= ground.from; x -= 2) offer({x, y});
        for (int x = ground.crossing + 1; x + 1 <= ground.to; x += 2) offer({x, y});
      }
    }
    what_.assign(at_.size(), kHome);
    std::size_t next = 0;
    for (int k = 1; k <= 5; ++k) {
      for (int n = 0; n < ground.services[static_cast<std::size_t>(k)]; ++n) what_.at(next++) = k;
    }
  }

  void search(std::uint64_t seed, int rounds) {
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> share(0, 1);
    const auto pick = [&] { return static_cast<std::size_t>(random() % what_.size()); };
    for (std::size_t n = what_.size(); n > 1; --n) std::swap(what_[n - 1], what_[random() % n]);
    double worth = worthNow();
    double best = worth;
    std::vector<int> bestWhat = what_;
    for (int n = 0; n < rounds; ++n) {
      const std::size_t a = pick();
      const std::size_t b = pick();
      if (what_[a] == what_[b]) continue;
      std::swap(what_[a], what_[b]);
      const double now = worthNow();
      const double heat = 12.0 * (1 - static_cast<double>(n) / rounds) + 0.1;
      if (now < worth && std::exp((now - worth) / heat) < share(random)) {
        std::swap(what_[a], what_[b]);
        continue;
      }
      worth = now;
      if (worth > best) {
        best = worth;
        bestWhat = what_;
      }
    }
    what_ = bestWhat;
  }

  Town result() {
    Town town;
    town.first = ground_.first;
    town.last = ground_.first + ground_.side - 1;
    town.streets.assign(streets_.begin(), streets_.end());
    gather();
    for (std::size_t n = 0; n < at_.size(); ++n) {
      if (what_[n] == kHome) {
        town.homes.push_back(at_[n]);
      } else {
        town.services[static_cast<std::size_t>(what_[n])].push_back(placeOf(n));
      }
    }
    sortByStreet(town);
    for (const Cell& home : town.homes) {
      const auto n = std::find(at_.begin(), at_.end(), home) - at_.begin();
      town.served.push_back(servicesAt(static_cast<std::size_t>(n)));
    }
    addFarms(town);
    return town;
  }

 private:
  void offer(Cell at) {
    for (int c = 0; c < 4; ++c) {
      if (taken_.contains({at.x + c % 2, at.y + c / 2})) return;
    }
    for (int c = 0; c < 4; ++c) taken_.insert({at.x + c % 2, at.y + c / 2});
    at_.push_back(at);
    std::vector<Cell> sides;
    for (int c = 0; c < 4; ++c) {
      const Cell cell{at.x + c % 2, at.y + c / 2};
      for (const Cell& beside : ringOf(cell, 1)) {
        if (!streets_.contains(beside)) continue;
        sides.push_back(cell);
        break;
      }
    }
    streetSides_.push_back(sides);
  }

  /// Where the building of plot n is anchored: a doctor needs a cell at the street.
  Cell placeOf(std::size_t n) const {
    return what_[n] == kDoctor ? streetSides_[n].front() : at_[n];
  }

  void gather() {
    for (auto& list : standing_) list.clear();
    for (std::size_t n = 0; n < at_.size(); ++n) {
      if (what_[n] != kHome) standing_[static_cast<std::size_t>(what_[n])].push_back(placeOf(n));
    }
  }

  bool covered(Cell cell, int k) const {
    const int reach = kReach[static_cast<std::size_t>(k)];
    const int more = sideOfService(k) - 1;
    for (const Cell& at : standing_[static_cast<std::size_t>(k)]) {
      if (cell.x >= at.x - reach && cell.x <= at.x + more + reach && cell.y >= at.y - reach &&
          cell.y <= at.y + more + reach) {
        return true;
      }
    }
    return false;
  }

  int servicesAt(std::size_t n) const {
    int count = 0;
    for (int k = 1; k <= 5; ++k) {
      const auto reached = [&](Cell cell) { return covered(cell, k); };
      count += std::any_of(streetSides_[n].begin(), streetSides_[n].end(), reached) ? 1 : 0;
    }
    return count;
  }

  double worthNow() {
    gather();
    double worth = 0;
    for (std::size_t n = 0; n < at_.size(); ++n) {
      if (what_[n] != kHome) continue;
      const int count = servicesAt(n);
      worth += 2 * count + 2 + (count == 5 ? ground_.fullyServed : 0);
    }
    return worth;
  }

  void sortByStreet(Town& town) {
    std::map<Cell, int> far;
    std::queue<Cell> next;
    const auto reach = [&](Cell cell, int distance) {
      if (streets_.contains(cell) && far.try_emplace(cell, distance).second) next.push(cell);
    };
    for (const Cell& cell : ringOf(town.services[1].front(), 2)) reach(cell, 0);
    while (!next.empty()) {
      const Cell cell = next.front();
      next.pop();
      for (const Cell& beside : ringOf(cell, 1)) reach(beside, far[cell] + 1);
    }
    const auto distance = [&](Cell home) {
      int least = 1000;
      for (const Cell& cell : ringOf(home, 2)) {
        if (far.contains(cell)) least = std::min(least, far[cell]);
      }
      return least;
    };
    std::stable_sort(town.homes.begin(), town.homes.end(),
                     [&](Cell a, Cell b) { return distance(a) < distance(b); });
  }

  void addFarms(Town& town) {
    const auto roomFor = [&](Cell at) {
      for (int c = 0; c < 9; ++c) {
        const Cell cell{at.x + c % 3, at.y + c / 3};
        if (cell.x > town.last || cell.y > town.last || taken_.contains(cell)) return false;
      }
      return true;
    };
    for (int y = town.first; y <= town.last; ++y) {
      for (int x = town.first; x <= town.last; ++x) {
        if (!roomFor({x, y})) continue;
        town.farms.push_back({x, y});
        for (int c = 0; c < 9; ++c) taken_.insert({x + c % 3, y + c / 3});
      }
    }
  }

  Ground ground_;
  std::set<Cell> streets_;
  std::set<Cell> taken_;
  std::vector<Cell> at_;
  std::vector<std::vector<Cell>> streetSides_;
  std::vector<int> what_;
  std::array<std::vector<Cell>, 6> standing_;
};

}  // namespace

std::vector<Cell> ringOf(Cell at, int side) {
  std::vector<Cell> ring;
  for (int n = 0; n < side; ++n) {
    ring.push_back({at.x - 1, at.y + n});
    ring.push_back({at.x + side, at.y + n});
    ring.push_back({at.x + n, at.y - 1});
    ring.push_back({at.x + n, at.y + side});
  }
  return ring;
}

bool Town::isStreet(Cell cell) const {
  return std::binary_search(streets.begin(), streets.end(), cell);
}

std::vector<Cell> Town::wayTo(Cell at, int side, const std::vector<Cell>& laid) const {
  std::map<Cell, Cell> from;
  std::queue<Cell> next;
  const auto reach = [&](Cell cell, Cell before) {
    if (isStreet(cell) && from.try_emplace(cell, before).second) next.push(cell);
  };
  for (const Cell& cell : laid) reach(cell, cell);
  const std::vector<Cell> ring = ringOf(at, side);
  if (laid.empty()) {
    for (const Cell& cell : ring) reach(cell, cell);
  }
  while (!next.empty()) {
    const Cell cell = next.front();
    next.pop();
    if (std::find(ring.begin(), ring.end(), cell) != ring.end()) {
      std::vector<Cell> way;
      for (Cell c = cell;; c = from[c]) {
        if (std::find(laid.begin(), laid.end(), c) != laid.end()) break;
        way.push_back(c);
        if (from[c] == c) break;
      }
      std::reverse(way.begin(), way.end());
      return way;
    }
    for (const Cell& beside : ringOf(cell, 1)) reach(beside, cell);
  }
  return {};
}

int Town::homesServedBy(int atLeast) const {
  return static_cast<int>(
      std::count_if(served.begin(), served.end(), [&](int n) { return n >= atLeast; }));
}

std::string Town::picture() const {
  const int side = last - first + 1;
  std::vector<std::string> rows(static_cast<std::size_t>(side),
                                std::string(static_cast<std::size_t>(side), '.'));
  const auto draw = [&](Cell at, int size, char letter) {
    for (int c = 0; c < size * size; ++c) {
      rows[static_cast<std::size_t>(at.y + c / size - first)]
          [static_cast<std::size_t>(at.x + c % size - first)] = letter;
    }
  };
  for (const Cell& cell : streets) draw(cell, 1, '#');
  for (std::size_t n = 0; n < homes.size(); ++n) {
    draw(homes[n], 2, static_cast<char>('0' + served[n]));
  }
  for (int k = 1; k <= 5; ++k) {
    for (const Cell& at : services[static_cast<std::size_t>(k)]) {
      draw(at, sideOfService(k), "?MSTCD"[k]);
    }
  }
  for (const Cell& at : farms) draw(at, 3, 'f');
  std::string text;
  for (const std::string& row : rows) text += row + "\n";
  return text;
}

Town planTown(const Ground& ground, std::uint64_t seed, int rounds) {
  Plots plots(ground);
  plots.search(seed, rounds);
  return plots.result();
}

}  // namespace campaign
