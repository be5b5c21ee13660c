// The people: how they come and go, and what their number unlocks.
#pragma once

#include <algorithm>
#include <array>

#include "core/buildings.h"

namespace sim {

/// How many people unlock a service, 1..5; 0 for one that is there from the start.
constexpr int unlockedAt(int service) {
  return core::buildingOfService(service).unlocking.population;
}
inline constexpr int kLockedServices = [] {
  int count = 0;
  for (int k = 1; k <= core::kServices; ++k) count += unlockedAt(k) > 0;
  return count;
}();
/// The services that have to be unlocked, in the order in which a tick tests them: by rising
/// population.
inline constexpr auto kMilestones = [] {
  std::array<int, kLockedServices> services{};
  auto next = services.begin();
  for (int k = 1; k <= core::kServices; ++k) {
    if (unlockedAt(k) > 0) *next++ = k;
  }
  std::sort(services.begin(), services.end(),
            [](int a, int b) { return unlockedAt(a) < unlockedAt(b); });
  return services;
}();
/// Unlocks the building of a service when enough people live here. Returns whether that was just now.
bool reachMilestone(core::City& city, int service);

/// People move in, or leave.
void movePopulation(core::City& city);

}  // namespace sim
