// What services reach, and how many people live there: effect areas, the flood along the roads, and
// the capacity that follows from both.
//
// Calling orders: a placement, a demolition by a press and the end of the earthquake call
// rebuildCoverage, floodServices, rebuildCapacity, evolveResidences; a famine's rebuild and a change
// of the tax rate leave the flood out; the removal of buildings without road calls rebuildCoverage and
// rebuildCapacity only. rebuildCapacity always follows rebuildCoverage.
#pragma once

#include "core/game_state.h"

namespace sim {

/// How far a cell of a building of service 1..5 reaches, in cells each way.
int reachOf(int service);

/// Lays the effect areas anew; zeroes cellCapacity, cellServices and housingCapacity.
void rebuildCoverage(core::GameState& game);

/// What started a flood: a press on the map runs the placement step first, when the residence was the
/// tool last picked on the palette.
enum class FloodCause { press, other };

/// Carries services along the roads into residences. Only adds to roadService and cellService.
void floodServices(core::GameState& game, FloodCause cause);

/// Capacity of each residence cell and of the city.
void rebuildCapacity(core::GameState& game);

/// Restores the tall flags of service buildings; clears none.
void markObjectCells(core::GameState& game);

/// Clears roadService and cellService of service k, 1..5, over the cells 0 .. 30.
void clearLayer(core::GameState& game, int k);

}  // namespace sim
