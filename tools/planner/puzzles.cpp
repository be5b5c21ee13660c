#include "planner/puzzles.h"

#include <algorithm>
#include <optional>
#include <string>

namespace planner {

namespace {

constexpr Cell kRing[8] = {{-1, 0}, {-1, 1}, {0, -1}, {1, -1}, {0, 2}, {1, 2}, {2, 1}, {2, 0}};
constexpr Cell kSides[4] = {{-1, 0}, {0, -1}, {1, 0}, {0, 1}};

bool holds(const std::vector<Cell>& cells, Cell cell) {
  return std::find(cells.begin(), cells.end(), cell) != cells.end();
}

/// A layout with its blocks given to residences and services.
struct Town {
  std::vector<Cell> streets, residences;
  Cell market, church, school;
  std::optional<Cell> doctor;
};

/// Whether a block takes a service from the streets: one of its cells that borders a street lies
/// within reach of the service, which stands on the square of `size` cells from `service`.
bool inReach(const Layout& layout, Cell block, Cell service, int size, int reach) {
  for (int n = 0; n < 4; ++n) {
    const Cell cell{block.x + n % 2, block.y + n / 2};
    const bool near = cell.x >= service.x - reach && cell.x <= service.x + size - 1 + reach &&
                      cell.y >= service.y - reach && cell.y <= service.y + size - 1 + reach;
    if (!near) continue;
    for (const Cell& side : kSides) {
      if (holds(layout.streets, {cell.x + side.x, cell.y + side.y})) return true;
    }
  }
  return false;
}

/// Blocks out of the reach of a service.
int missed(const Layout& layout, Cell service, int size, int reach) {
  int count = 0;
  for (const Cell& block : layout.blocks) {
    count += block == service || inReach(layout, block, service, size, reach) ? 0 : 1;
  }
  return count;
}

/// Gives `services` blocks (market, church, school in this order) the places from which they reach
/// every residence, and the doctor a free cell beside a street if one is wanted.
std::optional<Town> assign(const Layout& layout, int services, bool doctor) {
  constexpr int kReach[3] = {5, 5, 6};
  std::vector<Cell> left = layout.blocks;
  Town town;
  town.streets = layout.streets;
  Cell* const places[3] = {&town.market, &town.church, &town.school};
  for (int n = 0; n < services; ++n) {
    const auto good = std::find_if(left.begin(), left.end(), [&](Cell block) {
      return missed(layout, block, 2, kReach[n]) == 0;
    });
    if (good == left.end()) return std::nullopt;
    *places[n] = *good;
    left.erase(good);
  }
  town.residences = left;
  if (!doctor) return town;
  for (int y = 0; y < layout.side; ++y) {
    for (int x = 0; x < layout.side; ++x) {
      bool free = !holds(layout.streets, {x, y});
      for (const Cell& block : layout.blocks) {
        free = free && (x < block.x || x > block.x + 1 || y < block.y || y > block.y + 1);
      }
      bool street = false;
      for (const Cell& side : kSides)
        street = street || holds(layout.streets, {x + side.x, y + side.y});
      if (free && street && missed(layout, {x, y}, 1, 4) == 0) town.doctor = Cell{x, y};
    }
  }
  if (!town.doctor) return std::nullopt;
  return town;
}

Town findTown(int side, int blocks, int services, bool doctor) {
  for (std::uint64_t seed = 1; seed <= 20000; ++seed) {
    const Layout layout = joinedBlocks(side, blocks, seed, 200000);
    if (layout.blocks.empty()) continue;
    if (const auto town = assign(layout, services, doctor)) return *town;
  }
  throw Failure{"no layout found"};
}

/// Few streets that leave no block without one; `wanted` of the blocks are kept.
Layout thinned(Layout layout, int wanted) {
  layout.blocks.resize(static_cast<std::size_t>(wanted));
  std::vector<Cell> streets;
  std::vector<Cell> waiting = layout.blocks;
  while (!waiting.empty()) {
    const auto serves = [&](Cell street) {
      return std::count_if(waiting.begin(), waiting.end(), [&](Cell block) {
        return std::any_of(std::begin(kRing), std::end(kRing), [&](Cell ring) {
          return Cell{block.x + ring.x, block.y + ring.y} == street;
        });
      });
    };
    const Cell best = *std::max_element(layout.streets.begin(), layout.streets.end(),
                                        [&](Cell a, Cell b) { return serves(a) < serves(b); });
    streets.push_back(best);
    std::erase_if(waiting, [&](Cell block) {
      return std::any_of(std::begin(kRing), std::end(kRing), [&](Cell ring) {
        return Cell{block.x + ring.x, block.y + ring.y} == best;
      });
    });
  }
  layout.streets = streets;
  return layout;
}

/// Plays seconds until so many people live in the city.
void waitForPeople(Player& player, double people, int limit) {
  for (int n = 0; player.get("population") < people; ++n) {
    if (n == limit) {
      throw Failure{"only " + player.look("get population") + " people of " +
                    player.look("get housingCapacity")};
    }
    player.ticks(1);
  }
}

/// A milestone is announced by the tick after the one that reached it.
void waitForTool(Player& player, double people, const char* flag) {
  waitForPeople(player, people, 60);
  for (int n = 0; n < 3 && player.get(flag) == 0; ++n) player.ticks(1);
}

/// Farms over the whole square until the first harvest is in, then bare land again: food is only
/// needed until the goal is met, which takes less than a month from there.
void storeFood(Player& player, int side) {
  std::vector<Cell> farms;
  for (int y = 0; y + 3 <= side; y += 3) {
    for (int x = 0; x + 3 <= side; x += 3) farms.push_back({x, y});
  }
  player.remark("Farms first: the food for the whole level is stored before anyone comes.");
  player.use(kFarm, farms);
  player.ticks(31);
  player.remark("The farms make room.");
  player.use(kDemolish, farms);
}

void playResidences(Player& player, int level, const Layout& layout) {
  player.remark("Streets, then a residence at each of the places that they serve.");
  player.use(kRoad, layout.streets);
  player.use(kResidence, layout.blocks);
  player.finishPuzzle(level, 3, "scratchCount");
}

void playFirst(Player& player) {
  storeFood(player, 5);
  player.remark("Three residences and a market at three cells of road; with food and without tax");
  player.remark("each residence holds a little more than 20 people.");
  player.use(kRoad, {{2, 1}, {2, 2}, {2, 3}});
  player.use(kMarket, Cell{0, 0});
  player.use(kResidence, {{3, 0}, {0, 3}, {3, 3}});
  player.tax(0);
  player.finishPuzzle(1, 60, "population");
}

/// Nine blocks on a square of seven cells. Only eight of them can stand at one network of streets;
/// the ninth, at `corner`, has a cell of road of its own. It takes over what the cells under it
/// still know of a residence that stood partly there and partly beside the streets, at `lender`.
struct SevenSquare {
  std::vector<Cell> streets{{2, 4}, {2, 3}, {2, 2}, {1, 2}, {3, 4}, {4, 4}, {5, 4}};
  std::vector<Cell> outer{{0, 0}, {1, 5}, {3, 5}, {5, 5}, {5, 2}};
  Cell middle{3, 2};
  Cell north{2, 0};
  Cell west{0, 3};
  Cell corner{4, 0};
  Cell cornerStreet{6, 0};
  Cell lender{3, 1};
};

void playFourth(Player& player) {
  const SevenSquare plan;
  storeFood(player, 7);
  player.remark("A market and the residences beside the streets, for the hundred people who bring");
  player.remark("the church.");
  player.use(kRoad, plan.streets);
  player.use(kMarket, plan.west);
  player.use(kResidence, {{0, 0}, {1, 5}, {5, 5}, {5, 2}, {2, 0}, {3, 2}});
  player.tax(0);
  waitForTool(player, 100, "churchUnlocked");
  player.use(kChurch, Cell{3, 5});
  player.remark(
      "The corner stands at no street of the two services. A residence that lies half on");
  player.remark(
      "its cells and touches the streets is served; it goes, its cells keep the services,");
  player.remark("and the residence of the corner takes them over.");
  player.use(kDemolish, {plan.north, plan.middle});
  player.use(kResidence, plan.lender);
  player.use(kDemolish, plan.lender);
  player.use(kRoad, plan.cornerStreet);
  player.use(kResidence, {plan.corner, plan.middle, plan.north});
  player.finishPuzzle(4, 60, "population");
}

void playSixth(Player& player) {
  const SevenSquare plan;
  player.remark(
      "A market and eight residences. One of them, in the corner, takes over the service");
  player.remark("from a residence that stood there for a moment, half beside the street.");
  player.slowDown();
  player.use(kRoad, plan.streets);
  player.use(kMarket, plan.west);
  player.use(kResidence, plan.lender);
  player.use(kDemolish, plan.lender);
  player.use(kRoad, plan.cornerStreet);
  player.use(kResidence, {plan.corner, plan.middle, plan.north});
  player.use(kResidence, plan.outer);
  player.remark("A low tax fills the houses, the highest earns the most from then on.");
  player.tax(15);
  waitForPeople(player, 80, 30);
  player.tax(30);
  player.finishPuzzle(6, 31 + 34 * 12, "gold");
}

/// The gold levels of the nine-cell square: a year with or without the church.
void playGold(Player& player, int level, bool church) {
  const Town town = findTown(9, 14, church ? 2 : 1, false);
  player.slowDown();
  player.remark("A market and residences, all at one network of streets.");
  player.use(kRoad, town.streets);
  player.use(kMarket, town.market);
  player.use(kResidence, town.residences);
  if (church) {
    waitForTool(player, 100, "churchUnlocked");
    player.remark(
        "The church, as soon as a hundred people allow it, lets the highest tax keep them.");
    player.use(kChurch, town.church);
  } else {
    waitForPeople(player, 130, 30);
  }
  player.tax(30);
  player.finishPuzzle(level, 31 + 34 * 12, "gold");
}

void playPeople(Player& player, int level, int side, int blocks, bool doctor) {
  const Town town = findTown(side, blocks, 3, doctor);
  storeFood(player, side);
  player.remark("Everything at one network of streets; the market first.");
  player.use(kRoad, town.streets);
  player.use(kMarket, town.market);
  player.use(kResidence, town.residences);
  player.tax(0);
  waitForTool(player, 100, "churchUnlocked");
  player.use(kChurch, town.church);
  waitForTool(player, 250, "schoolUnlocked");
  player.use(kSchool, town.school);
  if (doctor) {
    waitForTool(player, 500, "doctorUnlocked");
    player.use(kDoctor, *town.doctor);
  }
  player.finishPuzzle(level, 60, "population");
}

}  // namespace

void playPuzzle(Player& player, int level) {
  player.remark("Level " + std::to_string(level) + " of puzzle play, from the menu to its end.");
  player.openPuzzle(level);
  switch (level) {
    case 1:
      return playFirst(player);
    case 2:
      return playResidences(player, level, joinedBlocks(11, 22, 1, 300000));
    case 3:
      return playGold(player, level, false);
    case 4:
      return playFourth(player);
    case 5:
      return playResidences(player, level, thinned(mostBlocks(11), 23));
    case 6:
      return playSixth(player);
    case 7:
      return playPeople(player, level, 9, 14, false);
    case 8:
      return playPeople(player, level, 11, 21, true);
    case 9:
      return playResidences(player, level, thinned(mostBlocks(11), 24));
    default:
      return playGold(player, level, true);
  }
}

}  // namespace planner
