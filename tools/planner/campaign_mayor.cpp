#include "planner/campaign_mayor.h"

#include <algorithm>

namespace campaign {

namespace {

constexpr std::array<Tool, 6> kToolOfService = {kHouse,  kMarket, kSchool,
                                                kTavern, kChurch, kDoctor};
constexpr std::size_t kAll = 99;

}  // namespace

Wants Mayor::homes(std::size_t from, std::size_t to) const {
  Wants wants;
  for (std::size_t n = from; n < std::min(to, town_.homes.size()); ++n) {
    wants.push_back({kHouse, town_.homes[n]});
  }
  return wants;
}

Wants Mayor::farms(std::size_t from, std::size_t to) const {
  Wants wants;
  for (std::size_t n = from; n < std::min(to, town_.farms.size()); ++n) {
    wants.push_back({kFarm, town_.farms[n]});
  }
  return wants;
}

Wants Mayor::service(int k, std::size_t n) const {
  const auto& list = town_.services[static_cast<std::size_t>(k)];
  if (n >= list.size()) return {};
  return {{kToolOfService[static_cast<std::size_t>(k)], list[n]}};
}

Wants Mayor::wholeTown() const {
  return all(
      {service(kMarkets, 0), homes(0, 10),         service(kChurches, 0), homes(10, 18),
       farms(0, 5),          service(kSchools, 0), farms(5, 9),           homes(18, 24),
       service(kDoctors, 0), farms(9, 13),         service(kMarkets, 1),  service(kChurches, 1),
       service(kSchools, 1), homes(24, kAll),      service(kDoctors, 1),  service(kTaverns, 0),
       service(kTaverns, 1), service(kDoctors, 2), service(kDoctors, 3),  service(kTaverns, 2),
       service(kTaverns, 3), farms(13, kAll)});
}

void Mayor::work(const Wants& wants) {
  for (const Want& want : wants) {
    if (player_.stands(want.tool, want.at) || !player_.unlocked(want.tool)) continue;
    if (!provide(want)) return;
  }
}

bool Mayor::provide(const Want& want) {
  if (want.tool != kFarm) {
    std::vector<Cell> laid;
    for (const Cell& cell : town_.streets) {
      if (player_.stands(kRoad, cell)) laid.push_back(cell);
    }
    for (const Cell& cell : town_.wayTo(want.at, sideOf(want.tool), laid)) {
      if (!player_.press(kRoad, cell)) return false;
    }
  }
  return player_.press(want.tool, want.at);
}

double Mayor::roomAt(int tax) {
  core::GameState& game = player_.game();
  double room = 0;
  for (int y = 0; y <= 30; ++y) {
    for (int x = 0; x <= 30; ++x) {
      if (game.tileCode(x, y) < 11 || game.tileCode(x, y) > 14) continue;
      const double cell = (2 * game.cellServices(x, y) + 2) * (1 + (15.0 - tax) / 50);
      room += game.food <= 0 ? std::min(cell, 4.0) : cell;
    }
  }
  return room;
}

void Mayor::taxFor(double people) {
  int tax = 30;
  while (tax > 0 && roomAt(tax) < people) tax -= 5;
  player_.setTax(tax);
}

void Mayor::taxForMilestone() {
  core::GameState& game = player_.game();
  const int milestones[] = {100, 250, 500, 1000};
  for (int n = 1; n <= 4; ++n) {
    if (game.toolUnlocked[n] == 1) continue;
    const int people = milestones[n - 1] + 3;
    taxFor(roomAt(0) >= people ? people : 0);
    return;
  }
  taxFor(0);
}

Wants all(std::initializer_list<Wants> lists) {
  Wants wants;
  for (const Wants& list : lists) wants.insert(wants.end(), list.begin(), list.end());
  return wants;
}

Wants without(Wants wants, const std::function<bool(const Want&)>& test) {
  std::erase_if(wants, test);
  return wants;
}

}  // namespace campaign
