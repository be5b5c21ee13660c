// The cursor: a diamond of eight lines over the cells that the tool in hand would cover. It only
// shows; play/press.h describes what a press does.
#pragma once

#include "play/scene.h"

namespace play {

/// One tick of the pointer timer: hover, edge scrolling, then the cursor.
void pointerTick(Scene& scene);

/// The pointer moved over the map, to pixel (x, y) of its surface: finds the cell, and requests
/// red over occupied cells and green over free ones for the next tick.
void moveOverMap(Scene& scene, double x, double y);

/// Recolours the lines as requested; of two requests green wins.
void tintCursor(Scene& scene);

}  // namespace play
