// The people: how they come and go, and what their number unlocks.
#pragma once

#include <array>

#include "core/game_state.h"

namespace sim {

/// The services that have to be unlocked, in the order in which a tick tests them: by rising
/// population.
inline constexpr std::array<int, 4> kMilestones{core::kChurch, core::kSchool, core::kDoctor,
                                                core::kTavern};
/// Unlocks the building of a service when enough people live here. Returns whether that was just now.
bool reachMilestone(core::City& city, int service);

/// People move in, or leave.
void movePopulation(core::City& city);

}  // namespace sim
