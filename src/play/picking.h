// From a pixel of the map surface to a cell of the play square.
#pragma once

#include "core/game_state.h"

namespace play {

/// Finds the cell at pixel (x, y) of the map surface into cellX, cellY. A coordinate for which no
/// band of cells holds the pixel (in the corners outside the map's diamond) keeps its value.
void pickCell(core::Hand& hand, double x, double y);

/// The lowest and the highest coordinate at which the footprint in hand is inside the play
/// square.
struct AnchorRange {
  double low;
  double high;
};
AnchorRange anchorRange(const core::Hand& hand, const core::ProgramValues& values);

/// Moves cellX, cellY to the nearest anchor inside the play square.
void clampCell(core::Hand& hand, const core::ProgramValues& values);

}  // namespace play
