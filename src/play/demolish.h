// Demolishing: the whole building on one cell goes. Nothing is paid or refunded.
#pragma once

#include "core/cell.h"
#include "play/scene.h"

namespace play {

/// Demolishes what is built on the cell. Returns false, with a message, on bare land.
bool demolish(Scene& scene, core::Cell cell);

}  // namespace play
