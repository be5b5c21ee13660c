// A press on the map: the one act by which the player changes the city.
#pragma once

#include "core/cell.h"
#include "play/scene.h"

namespace play {

/// A press at pixel (x, y) of the map surface, with whatever tool is in hand. One press is one
/// action; a refusal is one message, and changes nothing else.
void pressMap(Scene& scene, double x, double y);

/// Who uses a tool. A press of the player serves the residence just placed more generously.
enum class User { player, demonstration };
/// What the press does once its cell is known and nothing forbids it: places or demolishes with tool
/// 1..9.
void useTool(Scene& scene, int tool, core::Cell cell, User user);

/// Redraws the dirty cells and the tall ones. `drawTall` is DrawTiles3 after a build click and after the
/// earthquake, DrawTiles2 after every other change.
using DrawTall = void (*)(map::Stage&);
void redraw(Scene& scene, DrawTall drawTall = map::DrawTiles2);

}  // namespace play
