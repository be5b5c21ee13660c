// Puzzle play: ten small levels with one goal each, the values 20 to 29 of gMission.
#pragma once

#include "play/scene.h"
#include "store/progress_keeper.h"

namespace scenario {

/// Writes the goal of the running level into the goal strip.
void writePuzzleGoal(play::Scene& scene);

/// One second of a level: keeps the goal strip, and ends the level when it is solved or lost.
void puzzleTick(play::Scene& scene, store::ProgressKeeper& progress);

}  // namespace scenario
