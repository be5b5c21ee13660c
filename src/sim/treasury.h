// Gold: what buildings cost to keep, and what the people pay.
#pragma once

#include "core/game_state.h"

namespace sim {

/// Takes the upkeep of one tick and adds its tax.
void moveMoney(core::City& city);

}  // namespace sim
