// Food: the fields, the harvest, what is eaten, and the famine.
#pragma once

#include "core/game_state.h"

namespace sim {

/// At three moments of the month the farms get the picture of their stage and are marked dirty.
/// Returns whether this was such a moment, so that the caller redraws.
bool growFarms(core::City& city);

/// Food that the farms bring in a month, not rounded.
double harvestOfMonth(const core::City& city, const core::ProgramValues& values);
/// Adds the harvest of the month.
void harvest(core::City& city, const core::ProgramValues& values);
/// Adds what the king sends in this mission. Returns the text for the banner, or null for nothing.
const char* kingsAid(core::City& city, const core::ProgramValues& values);
/// Takes the food that is eaten in a month.
void consume(core::City& city);
/// Whether food is left, but little.
bool foodIsLow(const core::City& city);

/// What follows from the food of the month.
struct FamineStep {
  bool rebuild = false;  // capacity and residences change
  bool banner = false;   // a famine begins
};
/// Moves famineState on by the food of the month. Rebuilds nothing itself.
FamineStep stepFamine(core::City& city);

}  // namespace sim
