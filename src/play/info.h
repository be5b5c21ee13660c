// Info mode: a press names what stands on a cell and what its people have. It changes nothing.
#pragma once

#include "core/cell.h"
#include "play/scene.h"

namespace play {

/// Fills the info panel for a cell.
void inspectCell(Scene& scene, core::Cell cell);

}  // namespace play
