// The ground of the map: a random meadow, the rings at the border of the play square, the void around
// it, and the two front walls of the town in the missions that have them.
#pragma once

#include "core/game_state.h"
#include "platform/random.h"

namespace map {

/// Writes the picture of every cell 0 .. 30, wiping what was shown there, and the tall flags of walls.
/// Draws nothing. One draw of `random` for each cell.
void readmap(core::City& city, const core::ProgramValues& values, platform::Random& random);

}  // namespace map
