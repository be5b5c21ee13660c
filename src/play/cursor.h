// The cursor: a diamond of eight lines over the cells that the tool in hand would cover. It only
// shows; what a press does is told in play/press.h.
#pragma once

#include "play/scene.h"

namespace play {

/// One tick of the pointer timer: hover, edge scrolling, then the cursor.
void pointerTick(Scene& scene);

/// The pointer moved over the map, to pixel (x, y) of its surface: finds the cell, and asks the
/// next tick for red over cells that are taken and green over free ones.
void moveOverMap(Scene& scene, double x, double y);

/// Recolours the lines as asked; of two requests green wins.
void tintCursor(Scene& scene);

}  // namespace play
