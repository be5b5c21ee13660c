// What services reach, and how many people live there: effect areas, and the capacity that follows
// from the services of a cell. rebuildCapacity always follows rebuildCoverage (sim/rebuild.h).
#pragma once

#include "core/game_state.h"

namespace sim {

/// Marks the effect areas; zeroes cellCapacity, cellServices and housingCapacity.
void rebuildCoverage(core::City& city);

/// Capacity of each residence cell and of the city.
void rebuildCapacity(core::City& city);

/// Restores the tall flags of service buildings; clears none.
void markObjectCells(core::City& city);

}  // namespace sim
