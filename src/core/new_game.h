// What a new game resets, and the money it starts with.
#pragma once

#include "core/game_state.h"

namespace core {

/// Clears the grids, the history, the walkers and the unlock flags, gives every number its default,
/// and the treasury the amount of the money choice (300, 600 or 1000 for gStartMoney 1, 2, 3). What
/// only a press or a search gives a value (cellX, the working numbers) is left unset.
void resetGame(GameState& game, ProgramValues& values);

/// Clears all ten walker slots in all their fields.
void clearWalkers(Walkers& walkers);
/// Clears one walker slot, 1..10.
void clearWalker(Walkers& walkers, int slot);

/// Clears the history of columns -4 .. 50 in rows 1 .. 18.
void clearHistory(City& city);

}  // namespace core
