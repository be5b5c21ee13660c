// Disasters: earthquake and theft in the missions that have them, and the loss of
// buildings that a demolished road has cut off.
#pragma once

#include "core/game_state.h"
#include "platform/random.h"

namespace sim {

/// Whether the month that just began brings the earthquake.
bool earthquakeDue(const core::City& city, const core::ProgramValues& values);
/// Begins the shake. The caller switches Timer12 on and shows "EARTHQUAKE!!!".
void beginEarthquake(core::Earthquake& quake, const core::City& city);
/// One tick of the shake. True when it is over and the collapse follows.
bool shake(core::Earthquake& quake);
/// How far the shake holds the picture from its place now, in pixels to the right.
int shakeOffset(const core::Earthquake& quake);
/// Brings buildings down; each standing cell of a building has one chance in ten. Clears the layers of
/// the services of which a cell is still there when the scan reaches it. No rebuild: the caller
/// rebuilds with a flood, marks all cells, redraws, and calls endEarthquake.
void collapse(core::City& city, platform::Random& random);
void endEarthquake(core::Earthquake& quake);

/// Whether the month that just began brings the theft.
bool theftDue(const core::City& city, const core::ProgramValues& values);
/// Takes a quarter of the gold; returns the amount to report, floor(gold * 0.25).
double steal(core::City& city);

/// Whether any building but farms has lost its road.
bool anyBuildingWithoutRoad(const core::City& city);
/// Whether the building with its anchor (or the doctor) at (x, y) is beside a road. False also
/// for a cell that is neither an anchor nor a doctor.
bool hasRoad(const core::City& city, int x, int y);
/// Removes every building without road: codes, images and tall flags of its cells; the 7x7 cells
/// around each are marked dirty.
void removeBuildingsWithoutRoad(core::City& city);

}  // namespace sim
