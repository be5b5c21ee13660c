// The buttons of the right-hand panel are labels; the one under the pointer turns yellow.
#pragma once

#include "play/scene.h"

namespace play {

/// Lights the label under cursorX, cursorY and darkens the others; keeps its number in hoverLabel.
void highlightHover(Scene& scene);

}  // namespace play
