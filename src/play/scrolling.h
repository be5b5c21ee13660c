// The pointer at an edge of the screen slides the map.
#pragma once

#include "play/scene.h"

namespace play {

/// Puts the map where scrollX and scrollY say, and the earthquake's shake.
void placeMap(Scene& scene);

/// One tick of edge scrolling, for the pointer in cursorX, cursorY. In a corner both directions
/// act.
void scrollAtEdges(Scene& scene);

}  // namespace play
