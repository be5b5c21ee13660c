// The month and the year.
#pragma once

#include "core/game_state.h"

namespace sim {

/// Opens the next month: its length, its column of the history, the date, the sums of the month.
void beginMonth(core::City& city, core::ProgramValues& values);

}  // namespace sim
