// The demonstration: a city that builds itself, one step a second, in front of the running simulation.
#pragma once

#include "play/scene.h"

namespace scenario {

/// One second of the script. Returns whether the demonstration is over.
bool demonstrationTick(play::Scene& scene);

}  // namespace scenario
