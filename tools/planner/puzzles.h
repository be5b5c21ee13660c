// How each of the ten puzzle levels is won.
#pragma once

#include "planner/player.h"

namespace planner {

inline constexpr int kPuzzles = 10;

/// Plays level 1..10 from the menu to its end. A Failure says what did not come about.
void playPuzzle(Player& player, int level);

}  // namespace planner
