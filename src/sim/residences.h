// The stage of residences: tent, house, apartment, as their capacity says.
#pragma once

#include "core/game_state.h"

namespace sim {

/// Gives every residence the pictures of its stage and marks what must be repainted. Draws nothing.
void evolveResidences(core::City& city);

}  // namespace sim
