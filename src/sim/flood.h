// The flood of services along the roads.
#pragma once

#include <optional>

#include "core/cell.h"
#include "core/game_state.h"

namespace sim {

/// Carries services along the roads into residences. Only adds to roadService and cellService.
/// `placed` is the anchor of the block that a press has just placed, which is served more generously
/// than the others.
void floodServices(core::City& city, std::optional<core::Cell> placed = {});

/// Clears roadService and cellService of service k, 1..5, over the cells 0 .. 30.
void clearLayer(core::City& city, int k);

}  // namespace sim
