// Little figures on the straight stretches of road. Nothing in the simulation depends on them.
//
// There is no buffer behind a walker: it is a small opaque piece of road with a figure on it, moved two
// pixels at a time along the road's own stripes, so that each frame paints out the last one. Tall cells
// in front of it are painted again on top.
#pragma once

#include "map/renderer.h"
#include "platform/random.h"

namespace map {

/// The spawn tick: starts at most one walker on a road along y and one on a road along x. Returns whether
/// one was started, so that the caller switches the step timer on.
bool spawnWalkers(core::Walkers& walkers, const core::City& city, const core::Drawing& drawing,
                  platform::Random& random);
/// The step tick: moves all walkers, draws them (DrawTiles4), and clears the slots that ended.
void stepWalkers(Stage& stage);
void DrawTiles4(Stage& stage);
/// Paints out every walker, clears all slots and repaints the tall cells. No refresh.
void removeWalkers(Stage& stage);

}  // namespace map
