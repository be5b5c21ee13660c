// Info mode: a press names what stands on a cell and what its people have. It changes nothing.
#pragma once

#include "play/scene.h"

namespace play {

/// Fills the info panel for the cell in cellX, cellY.
void inspectCell(Scene& scene);

}  // namespace play
