// Info mode: a press shows what is on a cell and which services reach it. It changes nothing.
#pragma once

#include "core/cell.h"
#include "play/scene.h"

namespace play {

/// Fills the info panel for a cell.
void inspectCell(Scene& scene, core::Cell cell);

}  // namespace play
