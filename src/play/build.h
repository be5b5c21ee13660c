// Placing a building: checks, cue, cells, price.
#pragma once

#include "core/cell.h"
#include "play/scene.h"

namespace play {

/// Places a building with its anchor at `cell`. Returns false, with a message on the banner and nothing
/// else changed, when the place will not do.
bool place(Scene& scene, const core::Building& building, core::Cell cell);

}  // namespace play
