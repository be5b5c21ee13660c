#include "sim/population.h"

#include <cmath>

namespace sim {

bool reachMilestone(core::City& city, int service) {
  const core::Unlocking& unlocking = core::buildingOfService(service).unlocking;
  core::Number& reached = city.*unlocking.reached;
  if (reached != 0 || city.population < unlockedAt(service)) return false;
  reached = 1;
  city.toolUnlocked[unlocking.toolFlag] = 1;
  return true;
}

void movePopulation(core::City& city) {
  const double room = city.housingCapacity;
  double people = city.population;
  if (people < room) {
    // Deliberate: the second look sees the people that the first has brought, so near the end a tick
    // can bring both the fifth of the gap and the single one.
    if ((room - people) / 5 > 1) people += (room - people) / 5;
    if ((room - people) / 5 <= 1) people += 1;
    if (people >= room) people = room;
    people = std::floor(people);
  }
  if (people > room) people = room;
  city.population = people;
}

}  // namespace sim
