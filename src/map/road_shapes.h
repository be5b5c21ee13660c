// Which picture a road shows, by its four neighbours.
#pragma once

#include "core/game_state.h"

namespace map {

/// Picture of the road at (x, y) by the road table: its neighbours count by their code.
int roadImage(const core::City& city, int x, int y);
/// After a road was placed at (x, y), its code written: shapes it and its road neighbours; a neighbour
/// whose picture changes is marked dirty. Returns the number of its road neighbours.
int shapePlacedRoad(core::City& city, int x, int y);
/// After a demolition at (x, y): a junction that lost its stem becomes a straight road again. Nothing
/// else changes: a corner that lost an arm stays a corner.
void straightenRoadsAround(core::City& city, int x, int y);
/// After a load: every road takes the picture of the table; every cell 0 .. 30 is marked dirty.
void shapeAllRoads(core::City& city);

}  // namespace map
