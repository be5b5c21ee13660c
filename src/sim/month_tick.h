// The economy and the people: what the one-second tick does, and what the end of a month brings.
// Each function is one step; the tick that calls them in order stands in shell/game_tick.cpp.
#pragma once

#include <array>

#include "core/game_state.h"

namespace sim {

/// Step 1: column 43 of the history is followed by column 4.
void wrapHistory(core::GameState& game);

/// A population milestone.
struct Milestone {
  int population;    // reached at this many people
  int toolFlag;      // entry of toolUnlocked
  int paletteIndex;  // button of the palette that is shown
  const char* notice;
};
inline constexpr int kMilestones = 4;
/// Row n, 0..3, of the milestones, in the order in which they are tested.
const Milestone& milestone(int n);
/// Step 3, for one milestone: tests it, sets its flags, and says whether it was reached just now.
bool reachMilestone(core::GameState& game, int n);

/// Step 4: people move in, or leave.
void movePopulation(core::GameState& game);

/// Step 5: at three moments of the month the farms get the picture of their stage and are marked
/// dirty. Says whether this was such a moment, so that the caller redraws.
bool growFarms(core::GameState& game);

/// Step 6, first to fifth part of the month roll: length, history column, calendar, sums.
void beginMonth(core::GameState& game, core::ProgramValues& values);
/// Harvest of the month, not rounded.
void harvest(core::GameState& game, const core::ProgramValues& values);
/// What the king sends: the text for the banner, or null.
const char* kingsAid(core::GameState& game, const core::ProgramValues& values);
/// Food eaten in the month.
void consume(core::GameState& game);
/// Food is left, but little.
bool foodIsLow(const core::GameState& game);

/// What the famine's state machine asks for.
struct FamineStep {
  bool rebuild = false;  // coverage, capacity, evolution, redraw
  bool banner = false;   // "Famine started,people leave your city!"
};
/// Moves famineState on by the food of the month. Rebuilds nothing itself.
FamineStep stepFamine(core::GameState& game);

/// Step 7: maintenance and tax of one tick.
void moveMoney(core::GameState& game);

/// Step 8: rows 1..14 of the current history column.
void writeHistory(core::GameState& game, const core::ProgramValues& values);

/// Step 10: the five ratings.
void rateServices(core::GameState& game);

}  // namespace sim
