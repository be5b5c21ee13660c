// A city of more than two thousand people in open play, and ten years of its life.
#pragma once

#include "planner/player.h"

namespace planner {

/// Plays open play from the menu; the level means nothing here.
void playOpenPlay(Player& player, int level);

}  // namespace planner
