// Demolishing: the whole building on one cell goes. Nothing is paid or refunded.
#pragma once

#include "play/scene.h"

namespace play {

/// Demolishes what stands at cellX, cellY. False, with a message, on bare land.
bool demolish(Scene& scene);

}  // namespace play
