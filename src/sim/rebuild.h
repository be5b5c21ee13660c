// The rebuild of what follows from roads, buildings, tax and food.
#pragma once

#include <optional>

#include "core/cell.h"
#include "core/game_state.h"

namespace sim {

/// What a rebuild does besides coverage and capacity.
struct Rebuild {
  bool flood = false;                  // services spread along the roads
  std::optional<core::Cell> placed{};  // the block of a press, for the flood
  bool evolve = true;                  // residences change their stage
};

/// Coverage, flood, capacity and evolution, in this order.
void rebuildCity(core::City& city, const Rebuild& steps);

}  // namespace sim
