#include "planner/open_play.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <random>

namespace planner {

namespace {

// The square has 25 cells each way. Three streets run across it, with a row of blocks on both sides of
// each; one street joins them in the middle. The rest is for farms.
constexpr int kStreets[3] = {2, 7, 12};
constexpr int kSpine = 12;
constexpr int kSlots = 72;
constexpr int kFarms = 24;
constexpr int kPeopleWanted = 2000;

// Months of upkeep that stay in the treasury, and the gold below which nothing is built.
constexpr double kReserve = 80;

struct Slot {
  Cell block;                                      // anchor
  int street;                                      // its y
  Cell door() const { return {block.x, street}; }  // a cell of the street beside it
  /// Where a doctor stands in the place of a block: at the street.
  Cell besideStreet() const { return {block.x, block.y < street ? block.y + 1 : block.y}; }
};

std::array<Slot, kSlots> slots() {
  std::array<Slot, kSlots> all{};
  std::size_t n = 0;
  for (const int street : kStreets) {
    for (const int y : {street - 2, street + 1}) {
      for (int column = 0; column < 12; ++column) {
        all[n++] = {{column < 6 ? 2 * column : 2 * column + 1, y}, street};
      }
    }
  }
  // From the middle outward: the city grows along its streets.
  std::sort(all.begin(), all.end(), [](const Slot& a, const Slot& b) {
    const auto far = [](const Slot& s) {
      return 2 * std::abs(2 * s.block.x + 1 - 2 * kSpine) + 3 * std::abs(s.street - 7) * 2 +
             (s.block.y < s.street ? 0 : 1);
    };
    return far(a) < far(b);
  });
  return all;
}

/// Whether a block is served by a service in another slot: a cell at its street lies within reach.
bool serves(const Slot& home, const Slot& from, int tool) {
  static constexpr int kReach[] = {0, 0, 5, 6, 4, 5, 4};
  const int size = tool == kDoctor ? 1 : 2;
  const Cell service = tool == kDoctor ? from.besideStreet() : from.block;
  const int reach = kReach[tool];
  const int y = home.besideStreet().y;
  if (y < service.y - reach || y > service.y + size - 1 + reach) return false;
  return home.block.x + 1 >= service.x - reach && home.block.x <= service.x + size - 1 + reach;
}

using Roles = std::array<int, kSlots>;  // a tool for each slot

/// What a month brings at 15 percent once everything stands: tax less upkeep and the farms' share.
double worth(const std::array<Slot, kSlots>& all, const Roles& roles, double& people) {
  people = 0;
  double cost = 0;
  for (std::size_t n = 0; n < kSlots; ++n) {
    if (roles[n] != kResidence) {
      cost += 50;
      continue;
    }
    int services = 0;
    for (int tool = kMarket; tool <= kDoctor; ++tool) {
      bool served = false;
      for (std::size_t m = 0; m < kSlots && !served; ++m) {
        served = roles[m] == tool && serves(all[n], all[m], tool);
      }
      services += served ? 1 : 0;
    }
    people += 4 * (2 * services + 2);
  }
  return 0.6 * people - cost;
}

Roles chooseRoles(const std::array<Slot, kSlots>& all) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> share(0, 1);
  Roles roles{};
  roles.fill(kResidence);
  double people = 0;
  double now = worth(all, roles, people);
  constexpr int kRounds = 40000;
  for (int round = 0; round < kRounds; ++round) {
    const double heat = 40 * (1 - static_cast<double>(round) / kRounds) + 0.5;
    Roles changed = roles;
    const std::size_t n = random() % kSlots;
    if (random() % 2 == 0) {
      changed[n] = 1 + static_cast<int>(random() % 6);
    } else {
      std::swap(changed[n], changed[random() % kSlots]);
    }
    const double next = worth(all, changed, people);
    if (next < now && std::exp((next - now) / heat) < share(random)) continue;
    roles = changed;
    now = next;
  }
  return roles;
}

/// The mayor: looks at the city and builds what it lacks and can pay.
class Mayor {
 public:
  explicit Mayor(Player& player) : player_(player), all_(slots()), roles_(chooseRoles(all_)) {
    built_.fill(false);
  }

  /// Builds until the gold or the plan gives no more. False when the plan is finished.
  bool build() {
    for (;;) {
      const double gold = player_.get("gold");
      const int next = nextSlot();
      const bool hungry = player_.get("farmCount") * 400 / 12 < plannedPeople(next) / 4;
      if (next < 0 && !hungry) return false;
      if (hungry && farms_ < kFarms) {
        if (gold < 30 + kReserve) return true;
        player_.use(kFarm, Cell{3 * (farms_ % 8), 15 + 3 * (farms_ / 8)});
        ++farms_;
        continue;
      }
      if (next < 0) return false;
      const Slot& slot = all_[static_cast<std::size_t>(next)];
      const int tool = roles_[static_cast<std::size_t>(next)];
      const std::vector<Cell> street = missingStreet(slot);
      static constexpr double kPrice[] = {0, 10, 40, 75, 50, 60, 40};
      if (gold < kPrice[tool] + 5 * static_cast<double>(street.size()) + kReserve) return true;
      player_.use(kRoad, street);
      for (const Cell& cell : street) streets_.push_back(cell);
      player_.use(static_cast<Tool>(tool), tool == kDoctor ? slot.besideStreet() : slot.block);
      built_[static_cast<std::size_t>(next)] = true;
      if (tool == kResidence) ++residences_;
    }
  }

 private:
  /// The nearest place whose time has come: services follow the residences around them, when they
  /// are allowed and the tax bears their upkeep.
  int nextSlot() {
    const double surplus = player_.get("population") * 5 * player_.get("taxRate") / 100 -
                           player_.get("maintenancePerMonth");
    int best = -1;
    for (std::size_t n = 0; n < kSlots; ++n) {
      if (built_[n] || !allowed(roles_[n])) continue;
      if (roles_[n] == kResidence) {
        if (best < 0) best = static_cast<int>(n);
        continue;
      }
      int around = 0;
      for (std::size_t m = 0; m < kSlots; ++m) {
        around += built_[m] && roles_[m] == kResidence && serves(all_[m], all_[n], roles_[n]);
      }
      const bool first = roles_[n] == kMarket && residences_ >= 6 && markets() == 0;
      if (first || (around >= 8 && surplus > 55)) return static_cast<int>(n);
    }
    return best;
  }

  int markets() const {
    int count = 0;
    for (std::size_t n = 0; n < kSlots; ++n) count += built_[n] && roles_[n] == kMarket;
    return count;
  }

  bool allowed(int tool) {
    switch (tool) {
      case kChurch:
        return player_.get("churchUnlocked") == 1;
      case kSchool:
        return player_.get("schoolUnlocked") == 1;
      case kDoctor:
        return player_.get("doctorUnlocked") == 1;
      case kTavern:
        return player_.get("tavernUnlocked") == 1;
      default:
        return true;
    }
  }

  /// People to be fed once what stands is full and the next building has come.
  double plannedPeople(int next) {
    if (residences_ < 6) return 0;
    return player_.get("housingCapacity") + (next >= 0 ? 60 : 0);
  }

  /// The cells that join a slot to the middle.
  std::vector<Cell> missingStreet(const Slot& slot) {
    std::vector<Cell> cells;
    const auto want = [&](Cell cell) {
      if (std::find(streets_.begin(), streets_.end(), cell) == streets_.end())
        cells.push_back(cell);
    };
    for (int y = kStreets[1]; y != slot.street; y += slot.street > y ? 1 : -1) want({kSpine, y});
    const Cell door = slot.block.x > kSpine ? slot.door() : Cell{slot.block.x + 1, slot.street};
    for (int x = kSpine; x != door.x; x += door.x > x ? 1 : -1) want({x, slot.street});
    want(door);
    return cells;
  }

  Player& player_;
  std::array<Slot, kSlots> all_;
  Roles roles_;
  std::array<bool, kSlots> built_{};
  std::vector<Cell> streets_;
  int farms_ = 0;
  int residences_ = 0;
};

}  // namespace

void playOpenPlay(Player& player, int) {
  player.remark("Open play: a city of more than 2000 people, held for ten years.");
  player.openOpenPlay();
  player.speedUp();
  Mayor mayor(player);
  player.remark(
      "Three streets grow from the middle; farms go up before the people who eat from them.");
  bool building = true;
  for (int n = 0; building || player.get("population") < player.get("housingCapacity"); ++n) {
    if (n == 1500) {
      throw Failure{"only " + player.look("get population") + " people"};
    }
    building = mayor.build();
    player.ticks(4);
  }
  player.remark("The treasury is full; a lower tax brings more people, and they need more farms.");
  player.tax(10);
  for (int n = 0; n < 40; ++n) {
    mayor.build();
    player.ticks(4);
  }
  if (player.get("population") <= kPeopleWanted) {
    throw Failure{"finished with " + player.look("get population") + " people"};
  }
  player.remark("Ten years: what it comes to at the end of each.");
  for (int year = 1; year <= 10; ++year) {
    // Looked at every second here; the script looks once a year.
    for (int second = 0; second < 12 * 16; ++second) {
      player.look("advance 1000");
      if (player.get("population") <= kPeopleWanted) throw Failure{"people left"};
    }
    player.skipped(12 * 16);
    player.expect("get population");
    player.expect("get food");
    player.expect("get gold");
  }
  player.takePicture();
}

}  // namespace planner
