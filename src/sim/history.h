// The monthly book: a column for each month, and the ratings that it shows.
#pragma once

#include "core/game_state.h"

namespace sim {

/// Column 43 is followed by column 4.
void wrapHistory(core::City& city);
/// Writes rows 1..14 of the current column.
void writeHistory(core::City& city, const core::ProgramValues& values);
/// Counts the five ratings: the share of residence cells that have a service, in whole percent.
/// `numbers` keeps the last counts.
void rateServices(core::City& city, core::RecordNumbers& numbers);

}  // namespace sim
