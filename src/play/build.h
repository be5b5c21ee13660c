// Placing a building at cellX, cellY: checks, cue, cells, price. Each returns false, with a message
// on the banner and nothing else changed, when the place will not do.
#pragma once

#include "play/scene.h"

namespace play {

/// A 2x2 building, tool 1..5.
bool placeBlock(Scene& scene, int tool);
bool placeDoctor(Scene& scene);
bool layRoad(Scene& scene);
bool placeFarm(Scene& scene);

}  // namespace play
